#include "tfpaginationbar.h"

#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfpaginationform.h"

#include <QComboBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include <limits>

namespace {
constexpr int kDefaultRowsPerPage = 200;
const char kSettingsOrganization[] = "TFPaginationBar";
const char kSettingsApplication[] = "curpage";
const char kSettingsGroup[] = "Settings";
const char kIndexKey[] = "index";
const char kCountKey[] = "count";
} // namespace

TFPaginationBar::TFPaginationBar(QWidget *parent)
    : QFrame(parent)
    , m_form(std::make_unique<TFPaginationForm>())
    , m_validator(new QIntValidator(1, 1, this))
    , m_pageSizes{QStringLiteral("200"), QStringLiteral("400"), QStringLiteral("500"), QStringLiteral("1000")}
{
    m_form->build(this);
    m_form->currentPage->setValidator(m_validator);
    fillPageSizes();
    restore();
    connectControls();
    refreshButtons();
    TFCore::instance()->addStyle2View(this, QStringLiteral("subject/pagination.css"));
}

TFPaginationBar::~TFPaginationBar()
{
    QSettings settings(kSettingsOrganization, kSettingsApplication);
    settings.beginGroup(kSettingsGroup);
    const auto keep = [&settings](const char *key, int value) {
        // What is written is waited for until it is on the disk.
        if (settings.value(key, -1).toInt() != value)
            settings.setValue(key, value);
    };
    keep(kIndexKey, m_form->totalPageCombox->currentIndex());
    keep(kCountKey, m_form->totalPageCombox->count());
}

QWidget *TFPaginationBar::object()
{
    return this;
}

void TFPaginationBar::applySkinStyle(const QVariant &style)
{
    if (style.isValid())
        setStyleSheet(style.toString());
}

void TFPaginationBar::connectControls()
{
    QMetaObject::connectSlotsByName(this);
    connect(m_form->currentPage, &QLineEdit::returnPressed, this, &TFPaginationBar::typePage);
    connect(m_form->totalPageCombox, QOverload<int>::of(&QComboBox::activated), this,
            &TFPaginationBar::activateSize);
}

void TFPaginationBar::fillPageSizes()
{
    m_form->totalPageCombox->clear();
    for (const QString &size : qAsConst(m_pageSizes))
        m_form->totalPageCombox->addItem(QStringLiteral("%1").arg(size));
}

void TFPaginationBar::restore()
{
    QSettings settings(kSettingsOrganization, kSettingsApplication);
    settings.beginGroup(kSettingsGroup);
    const int index = settings.value(kIndexKey, 0).toInt();
    const int count = settings.value(kCountKey, 1).toInt();
    qCDebug(lcTable) << Q_FUNC_INFO << index << " cnt " << count;
    m_form->totalPageCombox->setCurrentIndex(count == m_form->totalPageCombox->count() ? index : 0);
}

void TFPaginationBar::reset()
{
    m_totalCount = 1;
    m_pageCount = 1;
    m_currentPage = 1;
    m_perCount = kDefaultRowsPerPage;
    m_enabled = true;
    m_form->totalPageCombox->setCurrentIndex(0);
    m_form->currentPage->setText(QStringLiteral("1"));
    refreshButtons();
}

void TFPaginationBar::refreshButtons()
{
    m_form->currentPage->setEnabled(m_currentPage != 0);
    m_form->prevButton->setEnabled(m_currentPage >= 2);
    m_form->nextButton->setEnabled(m_currentPage < m_pageCount);
    m_form->totalPageCombox->setEnabled(m_enabled);
    m_form->headButton->setEnabled(m_currentPage != 1);
    m_form->tailButton->setEnabled(m_currentPage != m_pageCount);
}

void TFPaginationBar::choosePageSize(int index)
{
    if (index < 0 || index > m_pageSizes.size())
        return;
    bool isNumber = false;
    m_perCount = m_pageSizes.value(index).toLongLong(&isNumber);
    if (!isNumber) {
        m_perCount = 0;
        m_currentPage = 0;
        return;
    }
    if (m_perCount == 0 || m_totalCount <= m_perCount)
        m_pageCount = 1;
    else
        m_pageCount = m_totalCount / m_perCount + (m_totalCount % m_perCount ? 1 : 0);
    m_currentPage = qMin(m_currentPage, m_pageCount);
}

void TFPaginationBar::setTotalCount(qint64 n)
{
    if (n == m_totalCount)
        return;
    m_totalCount = qMax<qint64>(n, 1);
    choosePageSize(m_form->totalPageCombox->currentIndex());
    setPageCount(m_pageCount);
}

void TFPaginationBar::setCurrentPage(int page)
{
    if (page == 0) {
        m_pageCount = 1;
        m_currentPage = 1;
        emit signalCurrentPageChanged(1, 0);
        m_form->totalPage->setText(QStringLiteral("1"));
    } else {
        m_currentPage = qBound<qint64>(1, page, m_pageCount);
        signalPage();
    }
    m_form->currentPage->setText(QString::number(m_currentPage));
    refreshButtons();
}

void TFPaginationBar::signalPage()
{
    emit signalCurrentPageChanged(int(m_currentPage), int(m_perCount));
}

void TFPaginationBar::setPerCnt(int n)
{
    if (n == m_perCount || n < 0)
        return;
    m_perCount = n;
    int index = m_pageSizes.indexOf(QString::number(n));
    if (index < 0) {
        m_pageSizes = QStringList{QString::number(n)};
        fillPageSizes();
        index = 0;
    }
    m_form->totalPageCombox->setEnabled(m_enabled);
    qCDebug(lcTable) << " idx " << index << " pecnt " << n;
    m_form->totalPageCombox->setCurrentIndex(index);
    choosePageSize(index);
    setPageCount(m_pageCount);
}

void TFPaginationBar::setPageCount(qint64 n)
{
    const qint64 count = qBound<qint64>(1, n, std::numeric_limits<int>::max());
    m_form->totalPage->setText(QString::number(count));
    m_validator->setRange(1, int(count));
    refreshButtons();
}

void TFPaginationBar::on_headButton_clicked()
{
    m_currentPage = 1;
    setCurrentPage(1);
    refreshButtons();
}

void TFPaginationBar::on_nextButton_clicked()
{
    setCurrentPage(int(m_currentPage + 1));
}

void TFPaginationBar::on_prevButton_clicked()
{
    setCurrentPage(int(m_currentPage - 1));
}

void TFPaginationBar::on_tailButton_clicked()
{
    setCurrentPage(m_form->totalPage->text().toInt());
}

void TFPaginationBar::typePage()
{
    const QString text = m_form->currentPage->text();
    if (!text.isEmpty() && text.toInt() == m_currentPage) {
        qCWarning(lcTable) << "current page not changed";
        return;
    }
    m_currentPage = text.toInt();
    signalPage();
    refreshButtons();
}

void TFPaginationBar::activateSize(int index)
{
    choosePageSize(index);
    setCurrentPage(int(m_currentPage));
    setPageCount(m_pageCount);
}
