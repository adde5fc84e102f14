#pragma once

#include "itfinterface.h"

#include <QList>
#include <QUrl>
#include <QVariant>

/// Back and forward within one page. The base behaviour is a page without a history.
class TFCORE_EXPORT ITFNavigation : public ITFInterface
{
public:
    virtual bool hasBack();
    virtual void goBack();
    virtual bool hasForward();
    virtual void goForward();
    virtual void goHome();
    virtual void stop();
    virtual QList<QUrl> getForwardList();
    virtual QList<QUrl> getBackList();
    virtual void refresh(const QUrl &url, QVariant argument);
    /// Signature text of the signal that tells of changed back and forward buttons, or an empty text.
    virtual QString signalNavIconEnabledChanged();
};

Q_DECLARE_INTERFACE(ITFNavigation, "tfcore.ITFNavigation")
