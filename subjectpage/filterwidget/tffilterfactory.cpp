#include "tffilterfactory.h"

#include <QJsonObject>

#include <algorithm>

namespace {
QString behindFirstDot(const QString &name)
{
    return name.mid(name.indexOf(QLatin1Char('.')) + 1);
}

bool hasField(const RowData &fields, const QString &name)
{
    return std::any_of(fields.begin(), fields.end(), [&name](const TFTableModelData::tagCellValue &cell) {
        return cell.fieldName == name;
    });
}
} // namespace

TFFilterFactory::TFFilterFactory(QObject *parent)
    : QObject(parent)
{}

TFFilterFactory::~TFFilterFactory() = default;

void TFFilterFactory::parse(const QString &text, const RowData &fields)
{
    m_links.clear();
    const QStringList pairs = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &pair : pairs) {
        const QStringList sides = pair.split(QLatin1Char('='), Qt::SkipEmptyParts);
        if (sides.size() != 2)
            continue;
        Link link;
        link.sourceField = hasField(fields, sides.at(0)) ? sides.at(0) : behindFirstDot(sides.at(0));
        link.targetField = behindFirstDot(sides.at(1));
        link.isDataSource = sides.at(1).contains(QStringLiteral("数据源"), Qt::CaseInsensitive);
        if (!link.sourceField.isEmpty() && !link.targetField.isEmpty())
            m_links.append(link);
    }
}

QString TFFilterFactory::target(const QString &field) const
{
    const auto hit = std::find_if(m_links.begin(), m_links.end(),
                                  [&field](const Link &link) { return link.targetField == field; });
    return hit == m_links.end() ? QString() : hit->sourceField;
}

FilterParam::DataSourceFilter TFFilterFactory::orderFilter(const QString &clause)
{
    if (clause.isEmpty())
        return {};
    QJsonObject terms;
    const QStringList parts = clause.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QStringList pieces = part.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (pieces.size() == 2)
            terms.insert(pieces.at(0),
                         pieces.at(1).compare(QLatin1String("DESC"), Qt::CaseInsensitive) == 0 ? -1 : 1);
    }
    return {QStringLiteral("order"), terms};
}
