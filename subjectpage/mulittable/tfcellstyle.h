#pragma once

#include <QHash>
#include <QJSValue>
#include <QString>
#include <QVariant>
#include <QVector>

class QJSEngine;
class TFRowStore;

/// The one script engine of the process, made on first use, for as long as the application lives.
namespace TFStyleEngine {

QJSEngine *engine();
/// Publishes the current skin as "$skin"; does nothing while no engine has been made.
void publishSkin(const QString &skinId);

} // namespace TFStyleEngine

/// One rule that gives the cells of a column their text colour.
///
/// The expression sees each cell of the row but the last as text under "$" + field name of its column, and
/// the skin as "$skin". It is a script expression, or a function without arguments that gives the value. It
/// is compiled once with only those cells as arguments that it names; one that can reach cells by other means
/// is evaluated anew for each row, with all cells as globals. A script that does not end is
/// interrupted, told once in the log, and not evaluated again. Not re-entrant.
class TFCellStyle
{
public:
    /// \a fieldNames are those of the columns, in order.
    TFCellStyle(const QString &expression, const QVector<QString> &fieldNames);

    /// The colour for \a row; an invalid variant where the expression gives none, or fails.
    QVariant colour(const TFRowStore &rows, int row);

private:
    struct Compiled
    {
        QJSValue function;
        QVector<int> cells; ///< indices of the cells that are its arguments
    };

    Compiled &compiled(int cellCount);
    Compiled compile(int cellCount) const;
    QJSValue evaluate(const TFRowStore &rows, int row);
    QJSValue call(const TFRowStore &rows, int row);
    QJSValue evaluateAnew(const TFRowStore &rows, int row) const;
    QHash<QString, int> published(int cellCount) const;

    QString m_expression;
    QVector<QString> m_fieldNames;
    QHash<int, Compiled> m_compiled; ///< by the number of cells of the row
    bool m_needsGlobals = false;
    bool m_endless = false;
};
