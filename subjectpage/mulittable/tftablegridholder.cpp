#include "tftablegridholder.h"

#include "jsonparser/tfjsonparser.h"
#include "records/tfcategories.h"
#include "tfheaderdatastruct.h"
#include "tfsubjecttablemodel.h"
#include "tfsujecttableview.h"
#include "tfunits.h"

#include <QApplication>
#include <QPainter>
#include <QVBoxLayout>

TFTableGridHolder::TFTableGridHolder(QWidget *parent)
    : QWidget(parent)
{}

TFTableGridHolder::~TFTableGridHolder() = default;

TFSujectTableView *TFTableGridHolder::makeGrid(TFTreeStruct *header)
{
    m_grid = new TFSujectTableView;
    m_model = new TFSubjectTableModel;
    m_model->setParent(m_grid);
    m_model->setHeader(header);
    replaceWidget();
    return m_grid;
}

void TFTableGridHolder::setMessage(const QString &message)
{
    m_message = message;
    if (m_grid)
        m_grid->setEmptyText(message);
    update();
}

void TFTableGridHolder::paintEvent(QPaintEvent *)
{
    if (m_grid)
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, m_message);
}

void TFTableGridHolder::replaceWidget()
{
    if (!layout()) {
        auto *box = new QVBoxLayout(this);
        box->setContentsMargins(0, 0, 0, 0);
    }
    m_hadFocus = false;
    if (QLayoutItem *item = layout()->takeAt(0)) {
        QWidget *old = item->widget();
        m_hadFocus = old->isAncestorOf(QApplication::focusWidget());
        old->hide();
        old->deleteLater();
        delete item;
    }
    layout()->addWidget(m_grid);
}

void TFTableGridHolder::showRows(const TFSubject::TFJsonParser &parser)
{
    m_model->setRows(parser.rowStore());
    m_grid->setModel(m_model, false);
    freezeColumns(parser.frozenCount());
    if (parser.isGroup()) {
        m_grid->setGroupColumn(-1);
        m_grid->expandAll();
    }
    if (parser.hasVGridColHeaderField())
        m_grid->setVGridHeader(parser.vGridColHeaderField());
    m_grid->setColumnsAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    if (m_hadFocus)
        m_grid->focusRows();
}

void TFTableGridHolder::freezeColumns(int count)
{
    if (count >= 1 && count < m_model->columnCount())
        m_grid->setFrozenCount(count);
    else
        qCWarning(lcTable) << "frozen count is invaild:" << count;
}

void TFTableGridHolder::setUnit(TFTreeStruct *header, int unitCode, int unitCategory)
{
    header->updateUnit(TFUnits::unitNameOfCode(unitCode), unitCategory);
    m_model->setHeader(header);
    const QList<HeaderFieldInfo *> records = header->leafRecords();
    m_grid->applyColumnSettings(records);
    qDeleteAll(records);
    m_model->setUnit(TFUnits::unitExponentOfCode(unitCode), unitCategory);
}
