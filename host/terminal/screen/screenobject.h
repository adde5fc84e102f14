#pragma once

#include <QObject>
#include <QVariantMap>

class ScreenArguments;

/// What a component of a composite screen finds behind the property "zhpObj" of its parent. Each cell has one
/// of its own, so that the screen knows which component speaks. User-interface thread only.
///
/// Components know it by the names of its members alone.
class ScreenObject : public QObject
{
    Q_OBJECT
    /// All global arguments, by their names.
    Q_PROPERTY(QVariantMap args READ args)

public:
    /// \a arguments must outlive the object.
    explicit ScreenObject(ScreenArguments *arguments, QObject *parent = nullptr);

    QVariantMap args() const;

    /// Has the user choose one of the arguments, or make one. \a chosenKey gets its name and stays as it is
    /// when he cancels.
    Q_INVOKABLE void getArgsDlg(QString currentKey, QString &chosenKey);
    /// To be called by the component when its settings have changed: its state is taken and the screen saved.
    Q_INVOKABLE void settingsChanged();

signals:
    /// \a changed holds only the arguments that are new or have another value, and with an invalid variant
    /// those that are gone, so that a component can tell whether the change concerns it. "args" has the new
    /// values already.
    void argsChanged(const QVariantMap &changed);
    /// The component called settingsChanged().
    void componentChanged();

private:
    ScreenArguments *m_arguments;
};
