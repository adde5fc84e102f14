#pragma once

#include "tfcore/itfabstractpage.h"
#include "tfcore/itfnavigation.h"
#include "tfcore/itfskin.h"

#include <QColor>
#include <QWidget>

class TFSubjectMainFrame;
class QUrlQuery;

/// One page of subject data in a tab of the host.
///
/// Page URL: "view://subjectpage?pnodecode=<int>&nodecode=<text>&objvwid=<text>&title=<text>". The host needs
/// only to contain the word "subjectpage". All items of the query, which is lower-cased as a whole, become
/// properties of the page; a page opens one URL in its life. The style sheet "subject/subject.css" of the
/// skin sets the colours with "TFSubjectPage { qproperty-headerBorderColor: ...; }".
class TFSubjectPage : public QWidget, public ITFSkin, public ITFAbstractPage, public ITFNavigation
{
    Q_OBJECT
    Q_INTERFACES(ITFSkin ITFAbstractPage ITFNavigation)
    Q_PROPERTY(QColor headerBorderColor READ headerBorderColor WRITE setHeaderBorderColor)
    Q_PROPERTY(QColor headerSplitColor READ headerSplitColor WRITE setHeaderSplitColor)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)

public:
    explicit TFSubjectPage(QWidget *parent = nullptr);
    ~TFSubjectPage() override;

    QWidget *object() override { return this; }

    /// Shows what \a url names. A URL that is not a page's leaves the page empty, with a warning.
    void init(const QUrl &url, QVariant argument) override;
    QString signalWindowTitleChanged() override;
    QString signalWindowIconChanged() override;
    QString url() override;
    void setUrl(const QString &url) override;

    /// Does nothing: a page has no history of its own.
    void goBack() override {}
    /// Does nothing: a page has no history of its own.
    void goForward() override {}

    void applySkinStyle(const QVariant &style) override;

    /// Outer border of a header section; handed on to TFQssCommon, like the other two.
    QColor headerBorderColor() const { return m_headerBorderColor; }
    void setHeaderBorderColor(const QColor &color);
    /// Line between two header sections.
    QColor headerSplitColor() const { return m_headerSplitColor; }
    void setHeaderSplitColor(const QColor &color);
    /// Background of the row under the mouse.
    QColor highlightColor() const { return m_highlightColor; }
    void setHighlightColor(const QColor &color);

signals:
    void signalWindowIconChanged(QIcon icon);
    void signalWindowTitleChanged(QString title);

public slots:
    /// Makes the window title of the page's caption and \a title.
    void slotChangeWindowTitle(QString title);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool parseUrl(const QUrl &url);
    void readTopic(const QUrlQuery &query);
    void keepItems(const QUrlQuery &query);

    TFSubjectMainFrame *m_mainFrame;
    QColor m_headerBorderColor;
    QColor m_headerSplitColor;
    QColor m_highlightColor;
};
