#pragma once

#include <QStringList>
#include <QWidget>

class QComboBox;

/// A drop-down list as a widget of its own, for a cell of a table. It passes on what its list tells.
class TFComboxView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString currentText READ currentText WRITE setCurrentText USER true)

public:
    explicit TFComboxView(QWidget *parent = nullptr);
    ~TFComboxView() override;

    void setEntries(const QStringList &entries);
    QString currentText() const;
    /// Selects the entry of that text; a text that is no entry changes nothing.
    void setCurrentText(const QString &text);

signals:
    void signalCurrentIndexChanged(int index);
    void signalCurrentIndexChanged(QString text);
    void signalCurrentTextChanged(QString text);

public slots:
    void slotCurrentIndexChanged(int index);
    void slotCurrentIndexChanged(QString text);
    void slotCurrentTextChanged(QString text);

private:
    QComboBox *m_list;
};
