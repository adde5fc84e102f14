#include "viewlibrary.h"

#include "configpacker.h"
#include "database.h"
#include "viewchecker.h"
#include "viewreader.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace service {

namespace {

const QStringList &reservedFiles()
{
    static const QStringList names{QStringLiteral("navigation.json"), QStringLiteral("blocks.json"),
                                   QStringLiteral("constants.json"), QStringLiteral("lists.json")};
    return names;
}

QStringList viewFiles(const QString &folder)
{
    const QDir base(folder);
    QStringList files;
    QDirIterator it(base.absolutePath(), {QStringLiteral("*.json")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files << base.relativeFilePath(it.next());
    for (const QString &name : reservedFiles())
        files.removeAll(name);
    files.sort();
    return files;
}

bool hasFilterFor(const ViewDocument &view, const QString &field)
{
    return std::any_of(view.filters.begin(), view.filters.end(), [&field](const QJsonValue &filter) {
        return filter.toObject().value(QLatin1String("FieldName")).toString() == field;
    });
}

} // namespace

ViewLibrary::ViewLibrary(const QString &folder, Database &database)
{
    if (!QFileInfo(folder).isDir())
        m_faults << folder + QStringLiteral(": no such folder");
    m_catalogue.load(folder, database, &m_faults);
    readViews(folder, database);
    checkChildren();
    checkNavigation();
    packAll();
}

const ServedView *ViewLibrary::view(qint64 id) const
{
    const auto it = m_views.find(id);
    return it == m_views.end() ? nullptr : &it->second;
}

void ViewLibrary::readViews(const QString &folder, Database &database)
{
    for (const QString &file : viewFiles(folder))
        readFile(folder, file, database);
}

void ViewLibrary::readFile(const QString &folder, const QString &file, Database &database)
{
    QStringList found;
    const DocumentPlace place(file, &found);
    QJsonObject object;
    ServedView view;
    view.file = file;
    if (readJsonFile(QDir(folder).filePath(file), &object, place)) {
        view.document = readView(object, place);
        const qint64 id = view.document.id;
        if (QFileInfo(file).completeBaseName() != QString::number(id))
            place.member(QStringLiteral("id")).fault(QStringLiteral("%1 is not the file's name").arg(id));
        if (const ServedView *other = this->view(id))
            place.member(QStringLiteral("id"))
                .fault(QStringLiteral("%1 is taken by %2").arg(id).arg(other->file));
        if (found.isEmpty())
            view.columns = checkAgainstDatabase(view.document, database, place);
    }
    if (found.isEmpty())
        m_views.emplace(view.document.id, std::move(view));
    m_faults += found;
}

void ViewLibrary::checkChildren()
{
    for (auto &entry : m_views) {
        QVector<ChildView> &children = entry.second.document.childViews;
        QVector<ChildView> good;
        for (int i = 0; i < children.size(); ++i) {
            QStringList found;
            const DocumentPlace place =
                DocumentPlace(entry.second.file, &found).member(QStringLiteral("childViews")).element(i);
            const ServedView *child = view(children.at(i).view);
            if (!child)
                place.member(QStringLiteral("view"))
                    .fault(QStringLiteral("no view %1; the child is left out").arg(children.at(i).view));
            for (const auto &link : children.at(i).link) {
                if (child && !hasFilterFor(child->document, link.first))
                    place.member(QStringLiteral("link"))
                        .fault(QStringLiteral("view %1 has no filter row for \"%2\"; the child is left out")
                                   .arg(children.at(i).view)
                                   .arg(link.first));
            }
            if (found.isEmpty())
                good << children.at(i);
            m_faults += found;
        }
        children = good;
    }
}

void ViewLibrary::checkNavigation()
{
    QList<qint64> missing;
    for (const qint64 id : m_catalogue.namedViews()) {
        if (!view(id))
            missing << id;
    }
    std::sort(missing.begin(), missing.end());
    for (const qint64 id : qAsConst(missing))
        m_faults << QStringLiteral("navigation.json: no view %1 is served").arg(id);
}

const ViewDocument *ViewLibrary::document(qint64 id) const
{
    const ServedView *served = view(id);
    return served ? &served->document : nullptr;
}

void ViewLibrary::packAll()
{
    for (auto &entry : m_views)
        entry.second.configuration =
            packConfiguration(entry.second.document, [this](qint64 id) { return document(id); });
}

bool ViewLibrary::isVisible(qint64 id, const Identity &identity) const
{
    const ViewDocument *found = document(id);
    return !found || identity.maySee(found->products);
}

QByteArray ViewLibrary::configuration(const ServedView &view, const Identity &identity) const
{
    const QVector<ChildView> &children = view.document.childViews;
    const auto isHidden = [&](const ChildView &child) { return !isVisible(child.view, identity); };
    if (std::none_of(children.begin(), children.end(), isHidden))
        return view.configuration;
    ViewDocument seen = view.document;
    seen.childViews.erase(std::remove_if(seen.childViews.begin(), seen.childViews.end(), isHidden),
                          seen.childViews.end());
    return packConfiguration(seen, [this](qint64 child) { return document(child); });
}

} // namespace service
