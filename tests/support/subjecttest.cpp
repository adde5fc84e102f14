#include "subjecttest.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QMutex>
#include <QMutexLocker>

namespace {
/// What came in over the message logger; written by any thread.
struct Messages
{
    QMutex mutex;
    QStringList debug;
    QStringList warnings;
    QList<QRegularExpression> expected;
    QList<QRegularExpression> allowed;
    QtMessageHandler previous = nullptr;
};

Messages &messages()
{
    static Messages all;
    return all;
}

/// What the toolkit says of itself and no test can provoke or prevent: the offscreen platform at every window
/// that is shown, and its HTTP client when the other side goes while the first bytes go out.
bool isToolkitRemark(const QString &text)
{
    return text == QLatin1String("This plugin does not support propagateSizeHints()") ||
           text == QLatin1String("QNativeSocketEngine::write() was called on an uninitialized socket device");
}

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Messages &all = messages();
    if (type == QtFatalMsg || type == QtCriticalMsg) {
        if (all.previous)
            all.previous(type, context, text);
        return;
    }
    if (isToolkitRemark(text))
        return;
    QMutexLocker lock(&all.mutex);
    (type == QtWarningMsg ? all.warnings : all.debug).append(text);
}

bool takeMatch(QList<QRegularExpression> &patterns, const QString &text)
{
    for (int i = 0; i < patterns.size(); ++i) {
        if (patterns.at(i).match(text).hasMatch()) {
            patterns.removeAt(i);
            return true;
        }
    }
    return false;
}

bool anyMatch(const QList<QRegularExpression> &patterns, const QString &text)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](const QRegularExpression &pattern) { return pattern.match(text).hasMatch(); });
}
} // namespace

SubjectTest::SubjectTest(QObject *parent)
    : QObject(parent)
{}

SubjectTest::~SubjectTest() = default;

QStringList SubjectTest::debugLines() const
{
    QMutexLocker lock(&messages().mutex);
    return messages().debug;
}

QStringList SubjectTest::warnings() const
{
    QMutexLocker lock(&messages().mutex);
    return messages().warnings;
}

void SubjectTest::expectWarning(const QString &pattern)
{
    QMutexLocker lock(&messages().mutex);
    messages().expected.append(QRegularExpression(pattern));
}

void SubjectTest::allowWarnings(const QString &pattern)
{
    QMutexLocker lock(&messages().mutex);
    messages().allowed.append(QRegularExpression(pattern));
}

void SubjectTest::beginMessages()
{
    Messages &all = messages();
    QMutexLocker lock(&all.mutex);
    all.debug.clear();
    all.warnings.clear();
    all.expected.clear();
    all.allowed.clear();
    all.previous = qInstallMessageHandler(collect);
}

void SubjectTest::endMessages()
{
    Messages &all = messages();
    qInstallMessageHandler(all.previous);
    QMutexLocker lock(&all.mutex);
    QStringList surprises;
    for (const QString &text : qAsConst(all.warnings)) {
        if (!takeMatch(all.expected, text) && !anyMatch(all.allowed, text))
            surprises.append(text);
    }
    QStringList missing;
    for (const QRegularExpression &pattern : qAsConst(all.expected))
        missing.append(pattern.pattern());
    lock.unlock();
    if (!surprises.isEmpty())
        QTest::qFail(qPrintable("unannounced warning: " + surprises.join("\n  and: ")), __FILE__, __LINE__);
    if (!missing.isEmpty())
        QTest::qFail(qPrintable("announced warning never came: " + missing.join("\n  and: ")), __FILE__,
                     __LINE__);
}

int runSubjectTest(int argc, char *argv[], int (*body)(int, char **))
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    QLoggingCategory::setFilterRules("subject.*.debug=true");
    return body(argc, argv);
}
