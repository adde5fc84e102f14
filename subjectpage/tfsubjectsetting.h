#pragma once

#include "records/tftablemodeldata.h"
#include "tfcore/itfskin.h"
#include "tfsubjectsettingtree.h"

#include <QDialog>
#include <QFrame>
#include <QPointer>
#include <QVariantMap>

#include <memory>

class QTreeWidgetItem;
class TFDm;
class TFFrameSubjectZHP;

namespace Ui {
class TFSubjectSetting;
}

/// Content of the settings dialog of a component: a topic, a view from the topic's tree, a global argument
/// that selects the view, filter arguments, and parts of the page to hide. Each change is signalled at once;
/// whoever opens the dialog undoes them when it is cancelled.
class TFSubjectSetting : public QFrame, public ITFSkin
{
    Q_OBJECT
    Q_INTERFACES(ITFSkin)

public:
    /// \a list names the topics, "name:root code" separated by commas; empty leaves them to the host's
    /// configuration, key "zhp.ini:Settings/list". The first topic is shown.
    explicit TFSubjectSetting(const QString &list, QWidget *parent = nullptr);
    ~TFSubjectSetting() override;

    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override;

    /// The frame whose arguments show in the filter bar; not owned, and may go before the dialog.
    void setFrame(TFFrameSubjectZHP *frame);
    void setPartsVisible(bool mainView, bool filterBar, bool childViews, bool pageBar);
    /// The view that is selected when a tree has it.
    void setCurrentView(qint64 objVwId, const QString &caption);
    /// Without a screen there is nothing to bind the view to.
    void setBindingEnabled(bool enabled);
    /// Builds the filter bar, with the frame's arguments as defaults.
    void setFilterRows(QList<TFTableModelData::FilterData> rows);
    /// What the filter bar holds, a map from field to value.
    QVariantMap filterArguments() const;

signals:
    void signalObjVwIdChanged(qlonglong objVwId, QString caption);
    void signalMainViewVisibleSettingChanged(bool isVisible);
    void signalFilterWidgetVisibleSettingChanged(bool isVisible);
    void signalSubViewVisibleSettingChanged(bool isVisible);
    void signalTitleVisibleChanged(bool isVisible);
    void signalTitleChanged(QString title);
    void signalPageBarVisibleChanged(bool isVisible);
    void signalBindGlBtnClicked();
    void signalPreviewFilters();
    void signalRefreashPage();

public slots:
    void slotCurrentItemChanged(QTreeWidgetItem *current, QTreeWidgetItem *previous);
    /// Selects the view on show in the tree, if it is there, and asks for its page anew.
    void slotChangeToDefaultItem();
    void on_cbHideFilterBar_clicked(bool checked);
    void on_cbHideMainView_clicked(bool checked);
    void on_cbHideChildView_clicked(bool checked);
    void on_cbHidePageBar_clicked(bool checked);
    void on_pbBindGl_clicked();
    void on_pbPreView_clicked();
    /// For a line with the title, which the form does not have.
    void on_txtTitle_textChanged(QString arg1);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectControls();
    void fillTopics(const QString &list);
    void loadTree(const QString &topic);
    void takeTree(const QString &topic, bool isOk, const QByteArray &data);
    void fitFilterBar();

    std::unique_ptr<Ui::TFSubjectSetting> m_ui;
    std::unique_ptr<TFDm> m_dm;
    qint64 m_objVwId = 0;
    QString m_caption;
    QPointer<TFFrameSubjectZHP> m_frame;
    std::vector<std::unique_ptr<TFJsonObjNode>> m_nodes; ///< those that the tree's items point to
};

/// Declared for a dialog that binds filters; nothing makes one.
class TFFilterBindDlg : public QDialog
{
    Q_OBJECT
};
