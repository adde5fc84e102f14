#include "tfsubjecttableexportprogress.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kDelay = 400; ///< milliseconds; a quick export shows nothing
constexpr int kWidth = 320;
} // namespace

TFSubjectTableExportProgress::TFSubjectTableExportProgress(QWidget *parent)
    : QDialog(parent)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("exportProgress"));
    setWindowTitle(tr("导出"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(kWidth);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("取消"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(buttons);

    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
    m_delay.start(kDelay);
}

void TFSubjectTableExportProgress::setStep(const QString &text, int done, int total)
{
    m_text->setText(text);
    m_bar->setRange(0, total);
    m_bar->setValue(done);
}
