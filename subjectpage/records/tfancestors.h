#pragma once

#include "filterparam.h"

#include <QObject>
#include <QVariantMap>
#include <QtPlugin>

/// Questions that a lower widget asks of an ancestor whose class it must not know. The ancestor is found with
/// TFAncestors::find() by its class name and asked through one of these interfaces with qobject_cast.

/// Answered by TFSubjectMainFrame.
class ITFPageContext
{
public:
    virtual ~ITFPageContext() = default;
    /// The pair "filterBlock" with the checked codes of the block tree as a JSON array.
    virtual FilterParam::DataSourceFilter blockFilter() const = 0;
    /// All query items of the page URL.
    virtual QMap<QString, QVariant> f9Arguments() const = 0;
};

/// Answered by TFRightContainer.
class ITFCurrentView
{
public:
    virtual ~ITFCurrentView() = default;
    /// Identifier of the view on screen, -1 during a change.
    virtual qint64 currentView() const = 0;
};

Q_DECLARE_INTERFACE(ITFPageContext, "subjectpage.ITFPageContext")
Q_DECLARE_INTERFACE(ITFCurrentView, "subjectpage.ITFCurrentView")

namespace TFAncestors {

/// The nearest ancestor of \a start (itself left out) whose class name is exactly \a className, or null.
QObject *find(const QObject *start, const char *className);

/// The same, asked for an interface; null where the ancestor is missing or does not answer it.
template <typename Interface> Interface *find(const QObject *start, const char *className)
{
    return qobject_cast<Interface *>(find(start, className));
}

} // namespace TFAncestors
