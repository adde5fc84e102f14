#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QStringList>
#include <QtTest>

/// Base of every test class: any warning that the test did not announce fails it.
///
/// A test announces what it provokes with expectWarning() before it does so. Announced warnings that never
/// come fail the test too. Debug lines are collected in debugLines() and printed by nobody.
class SubjectTest : public QObject
{
    Q_OBJECT

public:
    explicit SubjectTest(QObject *parent = nullptr);
    ~SubjectTest() override;

    /// Messages of debug and info level since the start of the running test function.
    QStringList debugLines() const;

    /// Warnings since the start of the running test function, announced or not.
    QStringList warnings() const;

protected:
    /// Announces one warning whose text matches \a pattern. Several calls announce several.
    void expectWarning(const QString &pattern);

    /// Announces that any number of warnings matching \a pattern may come.
    void allowWarnings(const QString &pattern);

protected slots:
    void beginMessages();
    void endMessages();

private slots:
    void init() { beginMessages(); }
    void cleanup() { endMessages(); }
};

/// Adds the row \a name of test data, one value a column.
template <typename... T> void testRow(const char *name, const T &...values)
{
    QTestData &row = QTest::newRow(name);
    (void(row << values), ...);
}

/// Program entry of a test with widgets: offscreen unless a display was asked for, English messages.
#define SUBJECT_TEST_MAIN(TestClass)                                                                         \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        return runSubjectTest(argc, argv, [](int c, char **v) {                                              \
            TestClass test;                                                                                  \
            return QTest::qExec(&test, c, v);                                                                \
        });                                                                                                  \
    }

/// Makes the application object of the test program and runs \a body in it.
int runSubjectTest(int argc, char *argv[], int (*body)(int, char **));
