#pragma once

#include "itfinterface.h"

#include <QVariant>

/// Something that takes a style sheet of the current skin; see TFCore::addStyle2View().
class TFCORE_EXPORT ITFSkin : public ITFInterface
{
public:
    /// \a style holds the text of a style sheet; an invalid variant is to be ignored.
    virtual void applySkinStyle(const QVariant &style) = 0;
};

Q_DECLARE_INTERFACE(ITFSkin, "tfcore.ITFSkin")
