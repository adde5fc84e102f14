#pragma once

#include "catalogue.h"
#include "columns.h"
#include "identity.h"
#include "viewdocument.h"

#include <map>

namespace service {

/// A view that is ready to be served.
struct ServedView
{
    ViewDocument document;
    Columns columns;          ///< output columns of its SQL
    QByteArray configuration; ///< packed, see packConfiguration(), with all child views
    QString file;             ///< relative to the folder of the documents
};

/// All views and what goes with them, as their documents stood when it was made. Afterwards it is only read,
/// by any number of threads.
class ViewLibrary
{
public:
    /// Reads all files of \a folder and checks them against \a database. Each fault is one located text in
    /// faults(); a document with one is left out.
    ViewLibrary(const QString &folder, Database &database);

    /// The view of that identifier, null if there is none.
    const ServedView *view(qint64 id) const;

    /// Whether \a identity may see the view; one that is not served hides nothing.
    bool isVisible(qint64 id, const Identity &identity) const;

    /// The packed configuration as \a identity may see it: without the child views that are kept from him.
    QByteArray configuration(const ServedView &view, const Identity &identity) const;

    int viewCount() const { return static_cast<int>(m_views.size()); }

    const Catalogue &catalogue() const { return m_catalogue; }
    const QStringList &faults() const { return m_faults; }

private:
    void readViews(const QString &folder, Database &database);
    void readFile(const QString &folder, const QString &file, Database &database);
    void checkChildren();
    void checkNavigation();
    void packAll();
    const ViewDocument *document(qint64 id) const;

    std::map<qint64, ServedView> m_views;
    Catalogue m_catalogue;
    QStringList m_faults;
};

} // namespace service
