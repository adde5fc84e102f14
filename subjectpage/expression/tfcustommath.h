#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>
#include <QVariant>

/// The named date and number functions that configuration can call. The present comes from TFClock.
///
/// Made on first use and never destroyed. The tables are read-only afterwards.
class TFCustomMath : public QObject
{
    Q_OBJECT

public:
    static TFCustomMath *instance();

    /// Calls the function \a name (case and blanks do not matter) and stores its text, number or date-time in
    /// \a result. An unknown name gives false and leaves \a result alone. A function that can't do its work
    /// gives an empty text or its default.
    bool callFunction(const QString &name, const QList<QVariant> &args, QVariant &result);

private:
    TFCustomMath();

    using Arguments = QList<QVariant>;
    QHash<QString, QString (*)(const Arguments &)> m_textFunctions;
    QHash<QString, double (*)(const Arguments &)> m_numberFunctions;
    QHash<QString, QDateTime (*)(const Arguments &)> m_dateFunctions;
};
