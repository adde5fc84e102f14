#pragma once

#include "tfcoreglobal.h"

class QWidget;

/// Root of the host's page interfaces: gives the widget behind an interface pointer.
class TFCORE_EXPORT ITFInterface
{
public:
    /// The widget that implements the interface; never null, owned by its parent.
    virtual QWidget *object() = 0;
    virtual ~ITFInterface();
};
