#pragma once

#include <QList>
#include <QVariantMap>
#include <QWidget>

class QHBoxLayout;
class QLineEdit;

/// The global arguments that are texts, as fields in the line over a screen: as many as there is room for, in
/// the order of their names. Object names: "ArgumentField" and the argument's name in the property
/// "argument".
class ArgumentFields : public QWidget
{
    Q_OBJECT

public:
    explicit ArgumentFields(QWidget *parent = nullptr);

    void setValues(const QVariantMap &values);

signals:
    /// The user has given an argument another value.
    void entered(const QString &name, const QString &value);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeFields(const QVariantMap &texts);
    void showWhatFits();

    QHBoxLayout *m_layout;
    QList<QWidget *> m_cells; ///< caption and field of one argument each
    QList<QLineEdit *> m_fields;
};
