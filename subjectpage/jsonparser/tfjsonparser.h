#pragma once

#include "records/headerfieldinfo.h"
#include "records/tfrowstore.h"
#include "records/tftablemodeldata.h"

#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QVariantMap>

#include <memory>

class ExpressionParse;
class TFBaseJsonTable;
class TFDataJsonTable;
class TFObjectViewConfigTable;
class TFSummaryJsonTable;
class TFTreeStruct;
class TFViewConfigTable;

namespace TFSubject {

/// Turns what the service delivers for one view into what its table shows: reads the configuration document
/// into tables, builds the band header tree, and makes rows of cells from raw rows.
///
/// Holds the current page only. User-interface thread only.
class TFJsonParser : public QObject
{
    Q_OBJECT

public:
    explicit TFJsonParser(QObject *parent = nullptr);
    ~TFJsonParser() override;

    /// Reads a whole document: replaces every table, fills \a header (which the caller owns and keeps alive)
    /// and builds the rows. False, with nothing done, for an undefined document or no header; true otherwise,
    /// also for a document without any known key. Emits signalSubTableJsonData() while it reads.
    ///
    /// \a rows, unless null, stand for what "Data" holds, here and in parseData(): see TFRowsReply.
    bool parseConfig(const QJsonValue &document, TFTreeStruct *header, const TFRawRowsPtr &rows = {});

    /// Reads "Data" and "Summary" of a later page and rebuilds the rows over the same header. False for a
    /// payload that is no object or an empty one.
    bool parseData(const QJsonValue &payload, const TFRawRowsPtr &rows = {});

    /// Export: turns a raw reply into plain values, one list a row in the order of \a header's leaves,
    /// appended to \a out. Touches nothing of the parser. False for a reply that is empty, no JSON, or whose
    /// "state" is not 1, and for one without data.
    bool parseData(const QByteArray &json, QList<QList<QVariant>> *out, TFTreeStruct *header);

    /// Empties the raw and the built rows; the tables of the configuration stay.
    void clearData();

    /// The built rows in full. rowStore() is the cheap way to them.
    QList<RowData> rows() const;
    const TFRowStore &rowStore() const { return m_rows; }
    /// The raw rows as maps, made at each call.
    QList<QVariantMap> dataMaps() const;
    bool hasRawRows() const;

    // Tables of the current document, or null.
    TFViewConfigTable *viewConfigTable() const;
    TFObjectViewConfigTable *objectViewConfigTable() const;
    TFSummaryJsonTable *summaryTable() const;

    QString objectViewName() const;
    QList<TFTableModelData::FilterData> filterData() const;
    QString childViewParams(qint64 objVwId) const;
    bool isCross() const;
    bool isGroup() const;
    bool isShowChild() const;
    bool hasVGridColHeaderField() const;
    int frozenCount() const;
    QString vGridColHeaderField() const;
    /// See TFViewConfigTable::orderProperty().
    QPair<QString, QVariant> orderProperty() const;

    // Figures of the summary; -1 without one.
    int rowCount() const;
    int pageIndex() const;
    int pageSize() const;

    /// A text that the parser keeps for its owner.
    QString ownerText() const { return m_ownerText; }
    void setOwnerText(const QString &text) { m_ownerText = text; }

signals:
    /// A child view was announced.
    void signalSubTableJsonData(qint64 obj_vw_id, QString caption);
    void sigSectorNumChanged(QString sectorNum);
    void sigNoData();

private:
    template <typename Table> Table *table(int tableId) const;
    TFDataJsonTable *dataTable() const;
    ExpressionParse *expressionParse();
    void readTable(const QString &name, const QJsonValue &value);
    void buildHeader();
    HeaderFieldInfo referenceRecord(const QString &fieldName) const;
    void expandCaption(QString &caption, const QVariantMap &arguments);
    void buildRows();

    TFTreeStruct *m_header = nullptr; ///< not owned
    std::unique_ptr<TFTreeStruct> m_internalTree;
    QMap<int, TFBaseJsonTable *> m_tables; ///< owned
    TFRowStore m_rows;
    QString m_ownerText;
    std::unique_ptr<ExpressionParse> m_expressionParse; ///< made on first use
};

} // namespace TFSubject
