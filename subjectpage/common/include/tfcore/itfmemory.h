#pragma once

#include "itfinterface.h"

#include <QMap>
#include <QString>
#include <QVariant>

/// State that the host keeps for a component between two runs.
class TFCORE_EXPORT ITFMemory : public ITFInterface
{
public:
    /// Writes the component's state into \a state; keys of others stay.
    virtual void save(QMap<QString, QVariant> &state) = 0;
    virtual void restore(const QMap<QString, QVariant> &state) = 0;
};

Q_DECLARE_INTERFACE(ITFMemory, "tfcore.ITFMemory")
