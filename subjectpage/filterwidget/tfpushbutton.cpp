#include "tfpushbutton.h"

#include "tfcore/tfcore.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

#include <cstdlib>

namespace {
const QLatin1String GetData("SimpleButtonGetData");
const QLatin1String SaveToExcel("SimpleButtonSaveToExcel");
const QLatin1String Sort("SimpleButtonSort");
const QString OpenText = QStringLiteral("打开EXCEL");
const QString SaveText = QStringLiteral("保存为EXCEL");
} // namespace

TFPushbutton::TFPushbutton(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_button(new QToolButton(this))
{
    m_button->setObjectName(row.ClassName + QLatin1String("Button"));
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_button->setFocusPolicy(Qt::StrongFocus);
    makeLayout(0)->addWidget(m_button);
    if (row.ClassName == SaveToExcel)
        becomeExport();
    else if (row.ClassName == GetData || row.ClassName == Sort)
        becomePlain();
    loadIcon();
}

void TFPushbutton::becomePlain()
{
    m_button->setText(row().Caption);
    connect(m_button, &QToolButton::clicked, this, &TFPushbutton::clicked);
    connect(TFCore::instance(), &TFCore::signalSkinChanged, this, &TFPushbutton::loadIcon);
}

void TFPushbutton::becomeExport()
{
    m_button->setText(QStringLiteral("保存"));
    m_button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(m_button);
    menu->addAction(SaveText);
    const QFontMetrics metrics(menu->font());
    menu->setMinimumWidth(
        menu->sizeHint().width() + 12 +
        std::abs(metrics.horizontalAdvance(OpenText) - metrics.horizontalAdvance(SaveText)));
    connect(menu, &QMenu::triggered, this, [this](const QAction *action) {
        emit clickedSaveBtn(action->text().contains(OpenText) ? 0 : 1);
    });
    m_button->setMenu(menu);
}

void TFPushbutton::loadIcon()
{
    QString file;
    if (m_button->objectName() == QLatin1String("SimpleButtonGetDataButton"))
        file = QStringLiteral("subject/download_hover.png");
    else if (m_button->objectName() == QLatin1String("SimpleButtonSaveToExcelButton"))
        file = QStringLiteral("subject/save.png");
    if (!file.isEmpty())
        m_button->setIcon(QIcon(TFCore::instance()->getCurrentSkinPath(file)));
}
