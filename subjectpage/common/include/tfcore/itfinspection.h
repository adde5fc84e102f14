#pragma once

#include "tfcoreglobal.h"

#include <QJsonObject>
#include <QString>
#include <QtPlugin>

/// Reads a page and works it without a user at hand: for pictures, batch exports and checks.
///
/// A page offers it as a direct child object (or is one itself). docs/rendering.md lists the keys of the
/// description and the steps. User-interface thread only.
class TFCORE_EXPORT ITFInspection
{
public:
    virtual ~ITFInspection();

    /// What is on the screen now. The key "state" is "shown", "noData", "waiting" (nothing has told the page
    /// to load) or "loading".
    virtual QJsonObject describe() const = 0;

    /// Does \a step, whose key "do" names it, as a user would; what it starts goes on after the return.
    /// Returns false where it can't be done, with the reason in \a reason, and leaves the page as it was.
    ///
    /// The step "export" takes the key "folder", into which the workbook goes.
    virtual bool perform(const QJsonObject &step, QString *reason) = 0;

    /// Whether something beyond requests is under way: a workbook being written, a chart page being loaded.
    virtual bool isAtWork() const = 0;

    /// What went wrong with the work that the last step began, and empties it. Empty if nothing did.
    virtual QString takeFault() = 0;
};

Q_DECLARE_INTERFACE(ITFInspection, "tfcore.ITFInspection")
