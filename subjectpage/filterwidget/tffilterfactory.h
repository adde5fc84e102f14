#pragma once

#include "records/filterparam.h"
#include "records/tftablemodeldata.h"

#include <QObject>

/// Reads the link text between a row of a main table and a child view: "A.FIELD1=数据源.FIELD2;..." says that
/// the main view's FIELD1 feeds the child's FIELD2.
class TFFilterFactory : public QObject
{
    Q_OBJECT

public:
    struct Link
    {
        bool isDataSource = false; ///< the child's side names the data source
        QString targetField;       ///< field of the child view
        QString sourceField;       ///< field of the main view
    };

    explicit TFFilterFactory(QObject *parent = nullptr);
    ~TFFilterFactory() override;

    /// Replaces the links by those of \a text. A left side that is the name of one of \a fields is taken
    /// whole, any other behind its first "."; a pair that gives no two names is passed over.
    void parse(const QString &text, const RowData &fields);
    /// The main view's field for the child's \a field, or a null string.
    QString target(const QString &field) const;
    QList<Link> links() const { return m_links; }

    /// The pair "order" for a clause such as "FIELD1 DESC,FIELD2 ASC": a JSON object from field to -1 or 1.
    /// An empty clause gives an empty pair.
    static FilterParam::DataSourceFilter orderFilter(const QString &clause);

private:
    QList<Link> m_links;
};
