#include "tfsubjecttableexport.h"

#include "mulittable/tfheaderdatastruct.h"
#include "net/tfdm.h"
#include "records/tfancestors.h"
#include "records/tfcategories.h"
#include "records/tfclock.h"
#include "tfexcelwritterjob.h"
#include "tfexportreadingjob.h"
#include "tfsubjecttableexportprogress.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

namespace {
constexpr int kOpenType = 0;
constexpr int kPollInterval = 20; ///< milliseconds
const char kMainFrameClass[] = "TFSubjectMainFrame";
const QString kSuffix = QStringLiteral(".xlsx");

QString chooseFile(QWidget *parent, const QString &caption, const QString &start, const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, start, filter);
}

/// "a" gives "a(1)"; "a(1)" gives "a(1)(1)".
QString nextBaseName(const QString &base)
{
    if (base.endsWith(QLatin1Char(')')))
        return base + QStringLiteral("(1)");
    const int opening = base.lastIndexOf(QLatin1Char('('));
    const int number = base.mid(opening, base.lastIndexOf(QLatin1Char(')'))).toInt();
    return QStringLiteral("%1(%2)").arg(base.left(opening)).arg(number + 1);
}

/// Whether somebody holds the file. Leaves what is in it alone.
bool isLocked(const QString &path)
{
    return QFile::exists(path) && !QFile(path).open(QIODevice::WriteOnly | QIODevice::Append);
}
} // namespace

TFSubjectTableExport::TFSubjectTableExport(QWidget *table)
    : QObject(table)
    , m_table(table)
    , m_chooser(chooseFile)
{
    m_pollTimer.setInterval(kPollInterval);
    connect(&m_pollTimer, &QTimer::timeout, this, &TFSubjectTableExport::poll);
}

TFSubjectTableExport::~TFSubjectTableExport()
{
    giveUpJobs();
}

void TFSubjectTableExport::exportRows(int type, const TFUc::TFRequestContent &content,
                                      const TFTreeStruct *header)
{
    if (isBusy())
        return;
    m_ending = ShowMessage;
    m_folder.clear();
    request(type, content, header);
}

bool TFSubjectTableExport::exportTo(const QString &folder, const TFUc::TFRequestContent &content,
                                    const TFTreeStruct *header)
{
    if (isBusy())
        return false;
    m_ending = Silent;
    m_folder = folder;
    request(kOpenType, content, header);
    return true;
}

bool TFSubjectTableExport::saveTo(const QString &folder, const TFTreeStruct &header,
                                  const QList<QList<QVariant>> &rows)
{
    if (isBusy())
        return false;
    m_ending = Silent;
    save(QDir(folder).filePath(fileName()), header, rows, Silent);
    return true;
}

void TFSubjectTableExport::request(int type, const TFUc::TFRequestContent &content,
                                   const TFTreeStruct *header)
{
    m_type = type;
    beginProgress();
    m_progress->setStep(tr("正在取数据..."));
    const auto take = [=, run = m_run](bool isOk, const QByteArray &data) {
        if (run != m_run || !isBusy())
            return;
        if (isOk) {
            takeReply(data, *header);
            return;
        }
        qCDebug(lcExport) << "isOk:" << isOk << data;
        end();
        fail(QStringLiteral("the rows did not arrive: ") + QString::fromUtf8(data));
    };
    TFDm::startRequest(content, this, take);
}

void TFSubjectTableExport::takeReply(const QByteArray &data, const TFTreeStruct &header)
{
    m_progress->setStep(tr("正在整理数据..."));
    m_reading = TFExportReadingJob::start(data, header);
    m_pollTimer.start();
}

void TFSubjectTableExport::takeRows()
{
    m_pollTimer.stop();
    const std::shared_ptr<TFExportReadingJob> reading = std::move(m_reading);
    if (reading->isGood()) {
        saveRows(reading->header(), reading->rows());
        return;
    }
    qCWarning(lcExport) << "parse data failed";
    end();
    fail(QStringLiteral("the rows that arrived can't be read"));
}

void TFSubjectTableExport::saveRows(const TFTreeStruct &header, const QList<QList<QVariant>> &rows)
{
    if (m_ending == Silent) {
        save(QDir(m_folder).filePath(fileName()), header, rows, Silent);
        return;
    }
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(fileName());
    if (m_type == kOpenType) {
        saveAndOpen(uniqueFileName(path), header, rows);
        return;
    }
    hideProgress();
    const QPointer<TFSubjectTableExport> self(this);
    const QString chosen =
        m_chooser(m_table, QStringLiteral("选择文件"), path, QStringLiteral("Excel (*.xlxs)"));
    if (!self)
        return;
    if (chosen.isEmpty())
        end();
    else
        saveWithMessage(chosen, header, rows);
}

QString TFSubjectTableExport::fileName() const
{
    const auto *frame = qobject_cast<QWidget *>(TFAncestors::find(m_table, kMainFrameClass));
    QString name = frame ? frame->windowTitle() : QString();
    name.replace(QRegularExpression(QStringLiteral("[:/\\\\]")), QStringLiteral("_"));
    return (name.isEmpty() ? tr("新建工作簿") : name) + kSuffix;
}

QString TFSubjectTableExport::uniqueFileName(const QString &path)
{
    QString unique = path;
    while (QFile::exists(unique) && !QFile::remove(unique)) {
        const QFileInfo info(unique);
        unique = info.dir().filePath(nextBaseName(info.baseName()) + info.completeSuffix());
    }
    return unique;
}

void TFSubjectTableExport::saveWithMessage(const QString &path, const TFTreeStruct &header,
                                           const QList<QList<QVariant>> &rows)
{
    save(path, header, rows, ShowMessage);
}

void TFSubjectTableExport::saveAndOpen(const QString &path, const TFTreeStruct &header,
                                       const QList<QList<QVariant>> &rows)
{
    save(path, header, rows, OpenFile);
}

QString TFSubjectTableExport::askForNewWorkbook()
{
    const QString name =
        QStringLiteral("新建工作簿_") + TFClock::now().toString(QStringLiteral("yyyyMMddhhMMss"));
    const QString start =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QDir::separator() + name;
    return m_chooser(nullptr, QStringLiteral("文件保存"), start, QStringLiteral("Excel工作簿(*.xlsx)"));
}

void TFSubjectTableExport::save(const QString &path, const TFTreeStruct &header,
                                const QList<QList<QVariant>> &rows, Ending ending)
{
    if (m_job)
        return;
    const QPointer<TFSubjectTableExport> self(this);
    QString target = path.isEmpty() ? askForNewWorkbook() : path;
    if (!self)
        return;
    if (target.isEmpty()) {
        end();
        warn(QObject::tr("u8用户已取消"));
        return;
    }
    if (!target.endsWith(kSuffix))
        target += kSuffix;
    if (isLocked(target)) {
        end();
        warn(QStringLiteral("文件处于占用状态"));
        return;
    }
    if (!isBusy())
        beginProgress();
    m_ending = ending;
    m_job = TFExcelWritterJob::start(target, header, rows);
    m_pollTimer.start();
}

void TFSubjectTableExport::beginProgress()
{
    ++m_run;
    m_progress = new TFSubjectTableExportProgress(m_table);
    m_progress->setAttribute(Qt::WA_DontShowOnScreen, m_ending == Silent);
    connect(m_progress, &QDialog::rejected, this, &TFSubjectTableExport::giveUp);
}

void TFSubjectTableExport::hideProgress()
{
    if (!m_progress)
        return;
    m_progress->hide();
    m_progress->deleteLater();
    m_progress = nullptr;
}

void TFSubjectTableExport::end()
{
    m_pollTimer.stop();
    hideProgress();
    emit ended();
}

void TFSubjectTableExport::giveUp()
{
    giveUpJobs();
    end();
}

void TFSubjectTableExport::giveUpJobs()
{
    if (m_reading)
        m_reading->giveUp();
    m_reading.reset();
    if (m_job)
        m_job->giveUp();
    m_job.reset();
}

void TFSubjectTableExport::poll()
{
    if (m_reading) {
        if (!m_reading->isRunning())
            takeRows();
        return;
    }
    switch (m_job->state()) {
    case TFExcelWritterJob::Writing:
        m_progress->setStep(tr("正在写入..."), m_job->writtenRows(), m_job->rowCount());
        return;
    case TFExcelWritterJob::Saving:
        m_progress->setStep(tr("正在保存..."));
        return;
    default:
        break;
    }
    const std::shared_ptr<TFExcelWritterJob> job = std::move(m_job);
    end();
    showResult(*job);
}

void TFSubjectTableExport::showResult(const TFExcelWritterJob &job)
{
    switch (job.state()) {
    case TFExcelWritterJob::Saved:
        break;
    case TFExcelWritterJob::HeaderFailed:
        qCWarning(lcExport) << "export failed:" << job.path() << job.errorText();
        warn(QObject::tr("u8写入表头失败"));
        return;
    case TFExcelWritterJob::DataFailed:
        qCWarning(lcExport) << "export failed:" << job.path() << job.errorText();
        warn(QObject::tr("u8写入内容失败"));
        return;
    default:
        return;
    }
    emit saved(job.path());
    if (m_ending == Silent)
        return;
    if (m_ending == OpenFile)
        QDesktopServices::openUrl(QUrl::fromUserInput(job.path()));
    else
        QMessageBox::information(m_table, QStringLiteral("保存成功"), QStringLiteral("文件保存成功"),
                                 QMessageBox::Ok);
}

void TFSubjectTableExport::fail(const QString &reason)
{
    if (m_ending == Silent)
        emit failed(reason);
}

void TFSubjectTableExport::warn(const QString &text)
{
    if (m_ending == Silent) {
        fail(text);
        return;
    }
    QMessageBox::warning(m_table, QStringLiteral("保存失败"), text, QMessageBox::Ok);
}
