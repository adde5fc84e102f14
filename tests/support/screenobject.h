#pragma once

#include <QObject>
#include <QVariantMap>

/// The object of a composite screen, as components see it.
class ScreenObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap args READ args)

public:
    /// Components that are made below \a parent from now on find this screen.
    void offerOn(QObject *parent) { parent->setProperty("zhpObj", QVariant::fromValue<QObject *>(this)); }

    QVariantMap args() const { return m_args; }
    /// Tells the components too.
    void setArgs(const QVariantMap &args)
    {
        m_args = args;
        emit argsChanged(args);
    }

    /// Answers with \c choice.
    Q_INVOKABLE void getArgsDlg(QString current, QString &chosen)
    {
        askedWith = current;
        chosen = choice;
    }
    Q_INVOKABLE void settingsChanged() { ++settingsChanges; }

    QString choice;
    QString askedWith; ///< the key that getArgsDlg() was given
    int settingsChanges = 0;

signals:
    void argsChanged(const QVariantMap &args);

private:
    QVariantMap m_args;
};
