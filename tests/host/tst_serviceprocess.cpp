#include "processes.h"
#include "serviceprocess.h"
#include "subjecttest.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <csignal>

namespace {
const char Service[] = PROJECT_BINARY_DIR "/bin/subject-service";
bool listens(const QUrl &address)
{
    QTcpSocket socket;
    socket.connectToHost(address.host(), quint16(address.port()));
    return socket.waitForConnected(2000);
}
} // namespace

class ServiceProcessTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "make");
        database.setDatabaseName(m_folder.filePath("empty.sqlite"));
        QVERIFY(database.open());
        database.exec("create table t (a)");
        QVERIFY(QDir(m_folder.path()).mkdir("views"));
    }

    void cleanupTestCase() { QSqlDatabase::removeDatabase("make"); }

    void serviceTellsItsAddressAndEndsWithItsOwner()
    {
        auto service = std::make_unique<ServiceProcess>();
        QSignalSpy ready(service.get(), &ServiceProcess::ready);
        service->start(command(Service));
        QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 1, 10000);
        const QUrl address = ready.first().first().toUrl();
        const qint64 pid = service->processId();
        QVERIFY(listens(address));
        // The service watches for the end of an owner that is killed.
        QVERIFY(Processes::told(pid, "cmdline").contains("--exit-with-parent"));

        service.reset();

        QVERIFY(Processes::told(pid, "cmdline").isEmpty());
    }

    void endOfARunningServiceIsTold()
    {
        ServiceProcess service;
        QSignalSpy ready(&service, &ServiceProcess::ready);
        QSignalSpy failed(&service, &ServiceProcess::failed);
        service.start(command(Service));
        QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 1, 10000);
        expectWarning("the data service ended");
        ::kill(pid_t(service.processId()), SIGKILL);
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(!service.isRunning());
    }

    void serviceThatCannotStartGivesAReason_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("reason");
        testRow("none", QByteArray(), "the data service is not there: .*/service");
        testRow("no program", QByteArray("\177ELFnonsense"), "cannot be started|ended with status");
        testRow("complains", QByteArray("#!/bin/sh\necho 'disk is full' >&2\nexit 4\n"),
                "ended with status 4: disk is full");
        testRow("silent", QByteArray("#!/bin/sh\nexec sleep 100\n"), "gave no address within");
        testRow("chatter", QByteArray("#!/bin/sh\necho listening on nothing\nexec sleep 100\n"),
                "gave no address within");
    }

    void serviceThatCannotStartGivesAReason()
    {
        QFETCH(QByteArray, program);
        QFETCH(QString, reason);
        const QString path = m_folder.filePath("service");
        QFile file(path);
        file.remove();
        if (!program.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(program);
            file.close();
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        ServiceProcess service;
        service.setStartTimeout(300);
        QSignalSpy failed(&service, &ServiceProcess::failed);
        expectWarning(reason);

        service.start(command(path));

        QTRY_COMPARE(failed.size(), 1);
        const QString told = failed.first().first().toString();
        QVERIFY2(told.contains(QRegularExpression(reason)), qPrintable(told));
        QVERIFY(!service.isStarting());
    }

    void missingDatabaseIsNamed()
    {
        ServiceProcess service;
        QSignalSpy failed(&service, &ServiceProcess::failed);
        expectWarning("the demonstration database is not there: /none.sqlite");
        service.start({Service, "/none.sqlite", m_folder.filePath("views")});
        QCOMPARE(failed.size(), 1);
    }

private:
    ServiceProcess::Command command(const QString &program) const
    {
        return {program, m_folder.filePath("empty.sqlite"), m_folder.filePath("views")};
    }

    QTemporaryDir m_folder;
};

SUBJECT_TEST_MAIN(ServiceProcessTest)
#include "tst_serviceprocess.moc"
