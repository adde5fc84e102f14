#pragma once

#include "tfcoreglobal.h"

#include <QByteArray>
#include <QMap>
#include <QWidget>

#include <functional>

/// The host's map from a class name to the function that makes an object of that class.
template <typename T> class TFFactory
{
public:
    using Constructor = std::function<T *(QWidget *parent)>;
    using Constructors = QMap<QByteArray, Constructor>;

    /// The one map of the process, to read from and to add to. User-interface thread only.
    static Constructors &constructors();
};

/// The map of widgets lives in the host's library, so that every plug-in sees the same one.
template <> TFCORE_EXPORT TFFactory<QWidget>::Constructors &TFFactory<QWidget>::constructors();
