#include "tffilteroperators.h"

#include <QHash>
#include <QString>

QString TFFilterOperators::serviceWord(const QString &configured)
{
    static const QHash<QString, QString> words = {
        {QStringLiteral(">="), QStringLiteral(">=")},     {QStringLiteral(">"), QStringLiteral(">")},
        {QStringLiteral("<"), QStringLiteral("<")},       {QStringLiteral("<="), QStringLiteral("<=")},
        {QStringLiteral("="), QStringLiteral("==")},      {QStringLiteral("<>"), QStringLiteral("!=")},
        {QStringLiteral("LIKE"), QStringLiteral("like")}, {QStringLiteral("IN"), QStringLiteral("in")},
        {QStringLiteral("NotIn"), QStringLiteral("nin")}, {QStringLiteral("and"), QStringLiteral("&&")},
        {QStringLiteral("or"), QStringLiteral("||")},
    };
    return words.value(configured, QStringLiteral("=="));
}
