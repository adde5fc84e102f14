#pragma once

#include "columntypes.h"

#include <QStringList>
#include <QVariant>
#include <QVector>

namespace service {

/// What differs in the SQL that the service itself writes. The base class is SQLite's; view documents are
/// written in what all dialects understand.
class SqlDialect
{
public:
    virtual ~SqlDialect();

    /// The one that is SQLite's.
    static const SqlDialect &plain();

    /// The field that an output column is; \a spelled are fields that the document names.
    virtual QString fieldName(const QString &column, const QStringList &spelled) const;

    /// How values are compared with a column that is declared as \a declared and stored as \a stored.
    virtual ValueKind comparedAs(ValueKind declared, StoredType stored) const;

    /// A quoted column so that such values can be compared with it.
    virtual QString comparable(const QString &column, StoredType stored) const;

    /// A term of ORDER BY for a quoted column: NULL before every value, texts by their bytes.
    virtual QString orderTerm(const QString &column, StoredType stored, bool isDescending) const;

    /// The condition `column LIKE ?`, whose pattern escapes with a backslash; letters of ASCII match in
    /// either case.
    virtual QString like(const QString &column, StoredType stored) const;

    /// The place of a value that a column of this type is compared with.
    virtual QString mark(StoredType stored) const;

    /// \a rows so that the database takes them as one VALUES list; \a types are given the types of its
    /// columns.
    virtual QVector<QVariantList> literalRows(const QVector<QVariantList> &rows,
                                              QVector<StoredType> *types) const;

    /// A statement whose one value stays the same as long as no data have changed.
    virtual QString versionQuery() const;
};

/// PostgreSQL's, which compares values of one type only.
class PostgresDialect : public SqlDialect
{
public:
    QString fieldName(const QString &column, const QStringList &spelled) const override;
    ValueKind comparedAs(ValueKind declared, StoredType stored) const override;
    QString comparable(const QString &column, StoredType stored) const override;
    QString orderTerm(const QString &column, StoredType stored, bool isDescending) const override;
    QString like(const QString &column, StoredType stored) const override;
    QString mark(StoredType stored) const override;
    QVector<QVariantList> literalRows(const QVector<QVariantList> &rows,
                                      QVector<StoredType> *types) const override;
    QString versionQuery() const override;
};

} // namespace service
