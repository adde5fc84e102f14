#include "database.h"
#include "requesthandler.h"
#include "subjecttest.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <cmath>

using namespace service;

namespace {

/// One database with the demonstration's views over it.
struct Served
{
    explicit Served(const QString &address)
        : database(address)
        , isOpen(database.open(&fault))
        , library(PROJECT_SOURCE_DIR "/demo/views", database)
        , handler(library, Limits())
    {}

    QJsonObject ask(const QJsonObject &request)
    {
        const Reply reply = handler.subjectData(QJsonDocument(request).toJson(), Identity(), database);
        return QJsonDocument::fromJson(reply.body).object();
    }

    Database database;
    QString fault;
    bool isOpen;
    ViewLibrary library;
    RequestHandler handler;
};

/// Where \a a and \a b differ, empty if nowhere. Numbers may differ in their last digits: the databases add
/// in different orders.
QString difference(const QJsonValue &a, const QJsonValue &b, const QString &place)
{
    if (a.isDouble() && b.isDouble()) {
        const double allowed = 1e-9 * std::max(std::fabs(a.toDouble()), std::fabs(b.toDouble()));
        if (std::fabs(a.toDouble() - b.toDouble()) <= allowed)
            return {};
    } else if (a.isArray() && b.isArray() && a.toArray().size() == b.toArray().size()) {
        QString found;
        for (int i = 0; i < a.toArray().size() && found.isEmpty(); ++i)
            found = difference(a.toArray().at(i), b.toArray().at(i), QString("%1[%2]").arg(place).arg(i));
        return found;
    } else if (a.isObject() && b.isObject() && a.toObject().keys() == b.toObject().keys()) {
        const QJsonObject first = a.toObject();
        QString found;
        for (auto it = first.begin(); it != first.end() && found.isEmpty(); ++it)
            found = difference(it.value(), b.toObject().value(it.key()), place + '.' + it.key());
        return found;
    } else if (a == b) {
        return {};
    }
    const auto text = [](const QJsonValue &value) {
        return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)).left(200);
    };
    return place + ": " + text(a) + " but " + text(b);
}

/// A condition on \a field that holds for \a value, of another kind for each \a turn.
QString condition(const QString &field, const QJsonValue &value, int turn)
{
    static const char *const numbers[] = {">=", "<", "==", "in"};
    static const char *const texts[] = {"like", "==", "in", "!="};
    const char *const *operators = value.isDouble() ? numbers : texts;
    return QString("(%1 %2 :V)").arg(field, QLatin1String(operators[turn % 4]));
}

} // namespace

/// The demonstration's views give the same on SQLite and on PostgreSQL, to which its data are copied first.
class TestDemoViews : public SubjectTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString file = QStringLiteral(PROJECT_SOURCE_DIR "/build/demo/demo.sqlite");
        const QString server = qEnvironmentVariable("SUBJECT_TEST_POSTGRES");
        QProcess loader;
        loader.setProcessChannelMode(QProcess::MergedChannels);
        loader.start(QStringLiteral(PROJECT_SOURCE_DIR "/tools/load-postgresql"), {file, server});
        QVERIFY(loader.waitForFinished(120000));
        QVERIFY2(loader.exitCode() == 0, loader.readAll().constData());
        m_file = std::make_unique<Served>(file);
        m_server = std::make_unique<Served>(server);
        QVERIFY2(m_server->isOpen, qPrintable(m_server->fault));
        QCOMPARE(m_server->library.faults(), QStringList());
        QCOMPARE(m_server->library.viewCount(), m_file->library.viewCount());
        QVERIFY(m_file->library.viewCount() > 80);
    }

    void bothDatabasesGiveTheSame_data()
    {
        QTest::addColumn<qint64>("id");
        QDirIterator files(QStringLiteral(PROJECT_SOURCE_DIR "/demo/views"), {"*.json"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            const qint64 id = files.fileInfo().completeBaseName().toLongLong();
            if (id > 0)
                QTest::addRow("%lld", id) << id;
        }
    }

    void bothDatabasesGiveTheSame()
    {
        QFETCH(qint64, id);
        const ServedView &view = *m_file->library.view(id);
        const QJsonObject base{{"obj_vw_id", id}, {"flag", 2}, {"page", 1}, {"size", 40}};
        QCOMPARE(compare(base), QString());
        const QJsonArray rows = m_file->ask(base).value("data").toObject().value("Data").toArray();
        QVERIFY(!rows.isEmpty());

        QStringList differences;
        const QStringList &fields = view.columns.names();
        for (int i = 0; i < fields.size(); ++i) {
            QJsonObject request{{"obj_vw_id", id}, {"flag", 1}, {"page", 1 + i % 2}, {"size", 30}};
            if (!view.document.cross.isSet())
                request.insert("order", QJsonObject{{fields.at(i), i % 3 ? 1 : -1}});
            differences << compare(request);
            const QJsonValue value = rows.at(rows.size() / 2).toObject().value(fields.at(i));
            request.insert("filter", condition(fields.at(i), value, i));
            request.insert("filterParams", QJsonObject{{"V", value}});
            if (value.isDouble() || value.isString())
                differences << compare(request);
        }
        QJsonObject searched = base;
        searched.insert("keywords", "a");
        if (!view.document.blockField.isEmpty())
            searched.insert("filterBlock",
                            QJsonArray{rows.last().toObject().value(view.document.blockField)});
        differences << compare(searched);
        differences.removeAll(QString());
        QCOMPARE(differences.join('\n'), QString());
    }

    void namedListsAreTheSame()
    {
        for (const char *body :
             {R"({"objId":390})", R"({"objId":43})", R"({"objId":38,"P_NODE_CODE":2})",
              R"x({"objId":390,"filter":"(TYPE == 1) && (VALUE != '2')"})x", R"({"objName":"STATES"})",
              R"x({"objName":"EXCHANGES","filter":"(VALUE != 'NYSE')"})x"}) {
            const auto answer = [body](Served &served) {
                return QJsonDocument::fromJson(
                           served.handler.namedData(body, Identity(), served.database).body)
                    .object();
            };
            QCOMPARE(difference(answer(*m_file), answer(*m_server), QString::fromUtf8(body)), QString());
        }
    }

private:
    QString compare(const QJsonObject &request) const
    {
        const QString found = difference(m_file->ask(request), m_server->ask(request), QString());
        return found.isEmpty()
                   ? found
                   : QString::fromUtf8(QJsonDocument(request).toJson(QJsonDocument::Compact)) + found;
    }

    std::unique_ptr<Served> m_file;
    std::unique_ptr<Served> m_server;
};

SUBJECT_TEST_MAIN(TestDemoViews)
#include "test_demoviews.moc"
