#pragma once

#include "itfinterface.h"

#include <QDateTime>
#include <QIcon>
#include <QUrl>
#include <QVariant>

/// A page in one of the host's tabs.
///
/// The signal*() operations return the signature text of a signal of object() as the SIGNAL() macro makes it
/// ("2name(types)"), or an empty text where the page has no such signal. The base behaviour of every
/// operation is to do nothing and to return an empty value.
class TFCORE_EXPORT ITFAbstractPage : public ITFInterface
{
public:
    virtual void init(const QUrl &url, QVariant argument);
    virtual void refresh(const QUrl &url, QVariant argument);
    virtual QString signalWindowTitleChanged();
    virtual QString signalUrlChanged();
    virtual QString signalWindowIconChanged();
    virtual QString signalLoadProgressChanged();
    virtual QString signalOpenNewUrl();
    virtual QString url();
    virtual QIcon icon();
    virtual QString title();
    virtual QDateTime lastVisited();
    virtual void setUrl(const QString &url);
    virtual void setIcon(QIcon icon);
    virtual void setTitle(const QString &title);
};

Q_DECLARE_INTERFACE(ITFAbstractPage, "tfcore.ITFAbstractPage")
