#pragma once

#include "records/tfancestors.h"

#include <QFrame>
#include <QJsonValue>

#include <memory>

class QGridLayout;
class QLabel;
class QSplitter;
class QStackedWidget;
class TFDm;
class TFRightContainer;
class TFTreeWidgetContainer;
class TFWebView;
struct NtResponse;

/// What fills a page: the navigation trees on the left, the data page or a web page on the right.
///
/// Nothing is requested before refresh(). Until the navigation has been dealt with, an image turns in the
/// middle of the frame; it stays there when the navigation fails.
class TFSubjectMainFrame : public QFrame, public ITFPageContext
{
    Q_OBJECT
    Q_INTERFACES(ITFPageContext)

public:
    explicit TFSubjectMainFrame(QWidget *parent = nullptr);
    ~TFSubjectMainFrame() override;

    /// The page's caption.
    QString caption() const { return m_caption; }
    void setCaption(const QString &caption);
    /// Code of the node to select; it takes precedence over the view.
    void setNodeCode(const QString &nodeCode);
    /// Identifier of the view to show, as text.
    void setObjVwId(const QString &objVwId);
    /// Code of the topic, that is, of the root of the navigation tree.
    void setPNodeCode(int pNodeCode);
    void setF9Arguments(const QMap<QString, QVariant> &arguments);

    QMap<QString, QVariant> f9Arguments() const override { return m_f9Arguments; }
    FilterParam::DataSourceFilter blockFilter() const override;

    TFTreeWidgetContainer *leftContainer() const { return m_ui.leftContainer; }
    /// Null before the first refresh().
    TFRightContainer *rightContainer() const { return m_rightContainer; }
    /// The web view if it is on top, or null.
    TFWebView *shownWebView() const;
    /// Whether the navigation has not been dealt with.
    bool isLoading() const;

    /// Requests the navigation, and builds the right side when called for the first time.
    void refresh();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The widgets that stand from the start.
    struct InterfaceParts
    {
        QGridLayout *gridLayout = nullptr;
        QSplitter *splitter = nullptr;
        TFTreeWidgetContainer *leftContainer = nullptr;
        QStackedWidget *rightContainer = nullptr;

        void build(QFrame *frame);
    };

    void requestBlockRows();
    void requestNavigation();
    void requestConstants(const NtResponse &navigation);
    void takeNavigation(const NtResponse &navigation);
    bool loadMainTree(const QJsonValue &rows);

    void buildRightSide();
    void startLoadingImage();
    void stopLoadingImage();
    void centreLoadingImage();
    void connectSides();
    void openItem(qlonglong objVwId, const QString &title, const QString &url);
    void showGroup(const QString &text);

    InterfaceParts m_ui;
    TFRightContainer *m_rightContainer = nullptr;
    TFWebView *m_webView = nullptr;
    QLabel *m_loadingLabel;
    std::unique_ptr<TFDm> m_dm;
    QString m_caption;
    int m_pNodeCode = -1;
    QString m_objVwId;
    QString m_nodeCode;
    QJsonValue m_blockValue; ///< stays null, which leaves a block tree with rows as it is
    QMap<QString, QVariant> m_f9Arguments;
};
