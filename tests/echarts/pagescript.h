#pragma once

#include <QVariant>
#include <QWebEnginePage>
#include <QtTest>

#include <memory>

/// What \a script gives in \a page, or an invalid value where no answer comes.
inline QVariant askPage(QWebEnginePage *page, const QString &script)
{
    struct Answer
    {
        bool isThere = false;
        QVariant value;
    };
    // The answer may come after this function has given up.
    const auto answer = std::make_shared<Answer>();
    page->runJavaScript(script, [answer](const QVariant &value) { *answer = {true, value}; });
    const bool isAnswered = QTest::qWaitFor([answer] { return answer->isThere; }, 10000);
    return isAnswered ? answer->value : QVariant();
}
