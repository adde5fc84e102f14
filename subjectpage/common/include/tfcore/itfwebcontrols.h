#pragma once

#include "itfinterface.h"

/// Zoom of a web page; 1.0 is its natural size.
class TFCORE_EXPORT ITFZoom : public ITFInterface
{
public:
    virtual qreal zoom() const = 0;
    virtual void setZoom(qreal factor) = 0;
};

/// Sound of a web page.
class TFCORE_EXPORT ITFAudioMuted : public ITFInterface
{
public:
    virtual bool isMuted() const = 0;
    virtual void setMuted(bool muted) = 0;
};

/// Settings of a web page that the host offers in its menus.
class TFCORE_EXPORT ITFWebSettings : public ITFInterface
{
public:
    virtual bool isJavaScriptEnabled() const = 0;
    virtual void setJavaScriptEnabled(bool enabled) = 0;
};

Q_DECLARE_INTERFACE(ITFZoom, "tfcore.ITFZoom")
Q_DECLARE_INTERFACE(ITFAudioMuted, "tfcore.ITFAudioMuted")
Q_DECLARE_INTERFACE(ITFWebSettings, "tfcore.ITFWebSettings")
