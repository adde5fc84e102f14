#include "tfbaseview.h"

#include "net/tfjsp.h"
#include "tfchildfilters.h"

TFBaseView::TFBaseView(QWidget *parent)
    : QFrame(parent)
{}

TFBaseView::~TFBaseView() = default;

QList<QPair<QString, QVariant>> TFBaseView::requestParameters() const
{
    QList<QPair<QString, QVariant>> pairs;
    for (const FilterParam::DataSourceFilter &parameter : m_parameters)
        pairs.append({parameter.key, parameter.value});
    return pairs;
}

void TFBaseView::reset(qint64)
{}

void TFBaseView::startLoading()
{}

void TFBaseView::noData()
{}

void TFBaseView::finished()
{}

FilterParam::DataSourceFilter TFBaseView::order() const
{
    return {};
}

int TFBaseView::viewKind() const
{
    return NoView;
}

QTime TFBaseView::startTime() const
{
    return QTime::currentTime();
}

void TFBaseView::setChildFilters(const QList<FilterParam::Cntrl> &controls, const RowData &row,
                                 const QString &linkText)
{
    TFChildFilters filters(controls, row, linkText);
    filters.build(filterList());
    m_parameters = filters.parameters();
    m_filters = filters.filters();
    m_parameters.append(order());
}

bool TFBaseView::takeReply(const QByteArray &reply, int flag)
{
    NtResponse response;
    if (!TFJSP::parseResponse(reply, response))
        return false;
    handleReply(response.data, QString(), flag);
    return true;
}
