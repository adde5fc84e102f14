#pragma once

#include "tfcore/itfskin.h"

#include <QFrame>
#include <QStringList>

#include <memory>

class QIntValidator;
struct TFPaginationForm;

/// The line of paging controls under a table: first, previous, a page number to type, the number of pages,
/// next, last, and a choice of rows a page.
///
/// The bar holds numbers only; who owns it fetches the page when the bar signals. Pages count from 1. The
/// owner blocks the signals while it applies the figures of a reply, so that applying them fetches nothing.
/// The choice of rows a page is kept in the user's settings from one bar to the next.
class TFPaginationBar : public QFrame, public ITFSkin
{
    Q_OBJECT
    Q_INTERFACES(ITFSkin)

public:
    explicit TFPaginationBar(QWidget *parent = nullptr);
    ~TFPaginationBar() override;

    QWidget *object() override;
    void applySkinStyle(const QVariant &style) override;

    /// One page of 200 rows. The choices and the number of pages on the label stay as they are.
    void reset();
    /// All rows of the query; less than 1 counts as 1.
    void setTotalCount(qint64 n);
    /// Shows \a page, or the last page where there are fewer, and signals it. 0 stands for an empty result.
    void setCurrentPage(int page);
    /// Rows a page. A number that is not among the choices becomes the only choice; a negative one, which
    /// comes from a reply without paging figures, is ignored.
    void setPerCnt(int n);
    /// Shows the number of pages and bounds what can be typed; less than 1 counts as 1.
    void setPageCount(qint64 n);
    /// Selects the kept choice of rows a page, if it was kept with as many choices as there are now.
    void restore();

    int currentPage() const { return int(m_currentPage); }
    int perCnt() const { return int(m_perCount); }
    qint64 pageCount() const { return m_pageCount; }
    QStringList pageSizes() const { return m_pageSizes; }

signals:
    void signalCurrentPageChanged(int curPage, int perSize);

private slots:
    void on_prevButton_clicked();
    void on_nextButton_clicked();
    void on_headButton_clicked();
    void on_tailButton_clicked();

private:
    void connectControls();
    void fillPageSizes();
    void refreshButtons();
    void choosePageSize(int index);
    void typePage();
    void activateSize(int index);
    void signalPage();

    std::unique_ptr<TFPaginationForm> m_form;
    qint64 m_totalCount = 1;
    qint64 m_pageCount = 1;
    qint64 m_currentPage = 1;
    qint64 m_perCount = 200;
    bool m_enabled = true;
    QIntValidator *m_validator;
    QStringList m_pageSizes;
};
