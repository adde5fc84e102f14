#pragma once

#include "rowsource.h"
#include "topic.h"

#include <QMap>
#include <QSet>

namespace service {

/// What is served beside the views: topics with their trees, blocks, constants and named lists.
class Catalogue
{
public:
    /// Reads the files of \a folder, each of which may be missing. A file with a fault is left out.
    void load(const QString &folder, Database &database, QStringList *faults);

    /// The topic of that code; empty for an unknown one.
    Topic topic(qint64 code) const { return m_topics.value(code); }
    QList<qint64> topicCodes() const { return m_topics.keys(); }

    /// Views that the trees name.
    const QSet<qint64> &namedViews() const { return m_namedViews; }

    const RowSource &blocks() const { return m_blocks; }
    const RowSource &constants() const { return m_constants; }

    /// The list of that name, null if there is none.
    const RowSource *list(const QString &name) const;
    QStringList listNames() const { return m_lists.keys(); }

private:
    QMap<qint64, Topic> m_topics;
    QSet<qint64> m_namedViews;
    RowSource m_blocks;
    RowSource m_constants;
    QMap<QString, RowSource> m_lists;
};

/// Reads a JSON file whose top level is an object. False, with a located fault, for anything else.
bool readJsonFile(const QString &path, QJsonObject *object, const DocumentPlace &place);

} // namespace service
