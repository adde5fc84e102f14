#include "tfjsonparser.h"

#include "expression/expressionparse.h"
#include "mulittable/tfheaderdatastruct.h"
#include "tfbandtreebuilder.h"
#include "tfcaption.h"
#include "tfdatajsontable.h"
#include "tfexportedrows.h"
#include "tffilterjsontable.h"
#include "tfheaderfieldconfigdata.h"
#include "tfjsontablefactory.h"
#include "tfobjectviewconfigtable.h"
#include "tfobjectviewjsontable.h"
#include "tfrowbuilder.h"
#include "tfsummaryjsontable.h"
#include "tftablenames.h"
#include "tfviewconfigtable.h"

#include <QJsonObject>

namespace TFSubject {

namespace {
/// The tables of a document, in the order in which they are read.
constexpr QLatin1String DocumentTables[] = {TFTableName::Data, TFTableName::ViewConfig,
                                            TFTableName::ObjectViewConfig, TFTableName::Summary,
                                            TFTableName::ObjectView};

/// Takes over what the record of the object behind the view, or of the cross columns, says better.
void applyReference(HeaderFieldInfo &field, const HeaderFieldInfo &reference)
{
    if (!reference.caption.isEmpty())
        field.caption = reference.caption;
    field.width = qMin(field.width, reference.width);
}

/// The default value of each filter, as captions see it.
QVariantMap defaultsByCaption(const QList<TFTableModelData::FilterData> &filters)
{
    QVariantMap defaults;
    for (const TFTableModelData::FilterData &filter : filters)
        defaults.insert(filter.Caption, filter.DefualtValue);
    return defaults;
}
} // namespace

TFJsonParser::TFJsonParser(QObject *parent)
    : QObject(parent)
    , m_internalTree(std::make_unique<TFTreeStruct>(QString()))
{}

TFJsonParser::~TFJsonParser()
{
    qDeleteAll(m_tables);
}

bool TFJsonParser::parseConfig(const QJsonValue &document, TFTreeStruct *header, const TFRawRowsPtr &rows)
{
    if (document.isUndefined() || !header)
        return false;
    m_header = header;
    qDeleteAll(m_tables);
    m_tables.clear();
    m_rows.clear();
    const QJsonObject object = document.toObject();
    for (const QLatin1String name : DocumentTables) {
        if (object.contains(name))
            readTable(name, object.value(name));
        if (rows && name == TFTableName::Data && dataTable())
            dataTable()->setRows(rows);
    }
    buildHeader();
    buildRows();
    return true;
}

void TFJsonParser::readTable(const QString &name, const QJsonValue &value)
{
    const int id = TFTableName::idOf(name);
    std::unique_ptr<TFBaseJsonTable> table = TFJsonTableFactory::create(id);
    if (!table)
        return;
    if (id == TFTableId::ViewConfig)
        connect(table.get(), &TFBaseJsonTable::sigJsonData, this, &TFJsonParser::signalSubTableJsonData);
    table->initWith(value);
    m_tables.insert(id, table.release());
}

bool TFJsonParser::parseData(const QJsonValue &payload, const TFRawRowsPtr &rows)
{
    if (!dataTable())
        m_tables.insert(TFTableId::Data, new TFDataJsonTable);
    const QJsonObject object = payload.toObject();
    if (object.isEmpty())
        return false;
    if (object.contains(TFTableName::Data))
        dataTable()->initWith(object.value(TFTableName::Data));
    if (rows)
        dataTable()->setRows(rows);
    if (object.contains(TFTableName::Summary)) {
        if (!summaryTable())
            m_tables.insert(TFTableId::Summary, new TFSummaryJsonTable);
        summaryTable()->initWith(object.value(TFTableName::Summary));
    }
    m_rows.clear();
    buildRows();
    return true;
}

bool TFJsonParser::parseData(const QByteArray &json, QList<QList<QVariant>> *out, TFTreeStruct *header)
{
    return TFExportedRows::read(json, out, header, false);
}

void TFJsonParser::clearData()
{
    m_rows.clear();
    if (TFDataJsonTable *data = dataTable())
        data->clear();
}

void TFJsonParser::buildHeader()
{
    m_header->clearChildren();
    const bool cross = isCross() && summaryTable() && summaryTable()->columnTable();
    TFHeaderFieldConfigData *columns = cross               ? summaryTable()->columnTable()
                                       : viewConfigTable() ? viewConfigTable()->headerTable()
                                                           : nullptr;
    if (!columns)
        return;
    if (!cross)
        columns->mergeWith(objectViewConfigTable());
    QList<HeaderFieldInfo> fields = columns->fields();
    if (fields.isEmpty())
        return;
    const QVariantMap defaults = defaultsByCaption(filterData());
    for (HeaderFieldInfo &field : fields) {
        applyReference(field, referenceRecord(field.fieldName));
        if (TFCaption::hasExpression(field.caption))
            expandCaption(field.caption, defaults);
    }
    std::optional<HeaderFieldInfo> groupColumn;
    if (isGroup())
        groupColumn = TFBandTreeBuilder::groupColumn(viewConfigTable()->groupFields());
    TFBandTreeBuilder::build(*m_header, fields, groupColumn);
}

HeaderFieldInfo TFJsonParser::referenceRecord(const QString &fieldName) const
{
    if (isCross() && summaryTable() && summaryTable()->columnTable())
        return summaryTable()->headerFieldInfo(fieldName);
    const TFObjectViewConfigTable *fields = objectViewConfigTable();
    return fields ? fields->headerFieldInfo(fieldName) : HeaderFieldInfo();
}

void TFJsonParser::expandCaption(QString &caption, const QVariantMap &arguments)
{
    QVariant result;
    expressionParse()->parse(TFCaption::expression(caption), result, arguments);
    caption = TFCaption::replaced(caption, result.toString());
}

void TFJsonParser::buildRows()
{
    const TFDataJsonTable *data = dataTable();
    if (!data)
        return;
    TFTreeStruct *header = m_header ? m_header : m_internalTree.get();
    TFRowBuilder builder(
        header->leaves(), [this](const QString &field) { return referenceRecord(field).valueType; },
        [this] { return expressionParse(); });
    m_rows = builder.build(data->rawRows());
}

ExpressionParse *TFJsonParser::expressionParse()
{
    if (!m_expressionParse)
        m_expressionParse = std::make_unique<ExpressionParse>();
    return m_expressionParse.get();
}

QList<RowData> TFJsonParser::rows() const
{
    return m_rows.rows();
}

QList<QVariantMap> TFJsonParser::dataMaps() const
{
    const TFDataJsonTable *data = dataTable();
    return data ? data->rows() : QList<QVariantMap>();
}

bool TFJsonParser::hasRawRows() const
{
    const TFDataJsonTable *data = dataTable();
    return data && data->rowCount() > 0;
}

template <typename Table> Table *TFJsonParser::table(int tableId) const
{
    return static_cast<Table *>(m_tables.value(tableId));
}

TFDataJsonTable *TFJsonParser::dataTable() const
{
    return table<TFDataJsonTable>(TFTableId::Data);
}

TFViewConfigTable *TFJsonParser::viewConfigTable() const
{
    return table<TFViewConfigTable>(TFTableId::ViewConfig);
}

TFObjectViewConfigTable *TFJsonParser::objectViewConfigTable() const
{
    return table<TFObjectViewConfigTable>(TFTableId::ObjectViewConfig);
}

TFSummaryJsonTable *TFJsonParser::summaryTable() const
{
    return table<TFSummaryJsonTable>(TFTableId::Summary);
}

QString TFJsonParser::objectViewName() const
{
    const auto *view = table<TFObjectViewJsonTable>(TFTableId::ObjectView);
    return view ? view->name() : QString();
}

QList<TFTableModelData::FilterData> TFJsonParser::filterData() const
{
    const TFViewConfigTable *config = viewConfigTable();
    const TFFilterJsonTable *filters = config ? config->filterTable() : nullptr;
    return filters ? filters->filters() : QList<TFTableModelData::FilterData>();
}

QString TFJsonParser::childViewParams(qint64 objVwId) const
{
    const TFViewConfigTable *config = viewConfigTable();
    return config ? config->childViewParams(objVwId) : QString();
}

bool TFJsonParser::isCross() const
{
    return viewConfigTable() && viewConfigTable()->isCross();
}

bool TFJsonParser::isGroup() const
{
    return viewConfigTable() && viewConfigTable()->isGroup();
}

bool TFJsonParser::isShowChild() const
{
    return viewConfigTable() && viewConfigTable()->isShowChild();
}

bool TFJsonParser::hasVGridColHeaderField() const
{
    return viewConfigTable() && viewConfigTable()->hasVGridColHeaderField();
}

int TFJsonParser::frozenCount() const
{
    return viewConfigTable() ? viewConfigTable()->frozenCount() : 0;
}

QString TFJsonParser::vGridColHeaderField() const
{
    return viewConfigTable() ? viewConfigTable()->vGridColHeaderField() : QString();
}

QPair<QString, QVariant> TFJsonParser::orderProperty() const
{
    return viewConfigTable() ? viewConfigTable()->orderProperty() : QPair<QString, QVariant>();
}

int TFJsonParser::rowCount() const
{
    return summaryTable() ? summaryTable()->rowCount() : -1;
}

int TFJsonParser::pageIndex() const
{
    return summaryTable() ? summaryTable()->pageIndex() : -1;
}

int TFJsonParser::pageSize() const
{
    return summaryTable() ? summaryTable()->pageSize() : -1;
}

} // namespace TFSubject
