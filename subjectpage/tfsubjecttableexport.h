#pragma once

#include <QList>
#include <QObject>
#include <QTimer>
#include <QVariant>

#include <functional>
#include <memory>

class QWidget;
class TFExcelWritterJob;
class TFExportReadingJob;
class TFSubjectTableExportProgress;
class TFTreeStruct;

namespace TFUc {
struct TFRequestContent;
}

/// The export of a table: requests its rows, names the file, and writes the workbook.
///
/// The window stays alive meanwhile: the reply is read and the workbook written on other threads, and a
/// dialog with a way out shows how far it is. One export at a time; a command that comes while one is under
/// way is dropped.
class TFSubjectTableExport : public QObject
{
    Q_OBJECT

public:
    /// Asks the user for a file to save to; an empty answer means none.
    using Chooser = std::function<QString(QWidget *parent, const QString &caption, const QString &start,
                                          const QString &filter)>;

    /// \a table is the parent, and of all dialogs.
    explicit TFSubjectTableExport(QWidget *table);
    /// Gives up what is under way.
    ~TFSubjectTableExport() override;

    /// What asks for a file, instead of the toolkit's dialog.
    void setChooser(Chooser chooser) { m_chooser = std::move(chooser); }
    bool isBusy() const { return m_progress != nullptr; }

    /// Sends \a content and writes the rows of its reply under \a header, as it is when the reply comes; it
    /// must live as long as this object. \a type 0 writes into the application's folder and opens the file,
    /// others ask where to put it and say when it is done.
    void exportRows(int type, const TFUc::TFRequestContent &content, const TFTreeStruct *header);

    /// The same without a question, a message or an opening: the workbook goes into \a folder, in place of
    /// one of its name, and saved() or failed() tells of it. Returns false where an export is under way.
    bool exportTo(const QString &folder, const TFUc::TFRequestContent &content, const TFTreeStruct *header);

    /// Writes \a header and \a rows in the same quiet way.
    bool saveTo(const QString &folder, const TFTreeStruct &header, const QList<QList<QVariant>> &rows);

    /// Writes \a header and \a rows to \a path and tells the user when they are saved. Asks for a file when
    /// \a path is empty; appends ".xlsx" where the name lacks it. Returns before the file is written.
    void saveWithMessage(const QString &path, const TFTreeStruct &header, const QList<QList<QVariant>> &rows);
    /// The same, but opens the file in place of the message.
    void saveAndOpen(const QString &path, const TFTreeStruct &header, const QList<QList<QVariant>> &rows);

    /// Name of the workbook: the title of the page with ":" and the separators of folders replaced by "_", or
    /// a fixed name where there is none; with ".xlsx".
    QString fileName() const;
    /// \a path, after the removal of what was there; another name where it can't be removed. "a.xlsx" becomes
    /// "a(1)xlsx".
    static QString uniqueFileName(const QString &path);

signals:
    /// The workbook stands whole at \a path; comes before the message and the opening.
    void saved(const QString &path);
    /// An export that exportTo() began came to nothing; a message box tells of the others.
    void failed(const QString &reason);
    /// Nothing is under way any more, whatever became of it.
    void ended();

private:
    enum Ending { ShowMessage, OpenFile, Silent };

    void request(int type, const TFUc::TFRequestContent &content, const TFTreeStruct *header);
    void fail(const QString &reason);
    void takeReply(const QByteArray &data, const TFTreeStruct &header);
    void takeRows();
    void saveRows(const TFTreeStruct &header, const QList<QList<QVariant>> &rows);
    void save(const QString &path, const TFTreeStruct &header, const QList<QList<QVariant>> &rows,
              Ending ending);
    QString askForNewWorkbook();
    void beginProgress();
    void hideProgress();
    void end();
    void giveUp();
    void giveUpJobs();
    void poll();
    void showResult(const TFExcelWritterJob &job);
    void warn(const QString &text);

    QWidget *m_table;
    Chooser m_chooser;
    int m_type = 0;
    Ending m_ending = ShowMessage;
    QString m_folder; ///< of a silent export
    int m_run = 0;    ///< number of the export under way; a reply to an earlier one is stale
    QTimer m_pollTimer;
    std::shared_ptr<TFExportReadingJob> m_reading;
    std::shared_ptr<TFExcelWritterJob> m_job;
    TFSubjectTableExportProgress *m_progress = nullptr; ///< there while an export is under way
};
