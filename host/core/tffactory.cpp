#include "tfcore/tffactory.h"

template <> TFFactory<QWidget>::Constructors &TFFactory<QWidget>::constructors()
{
    static Constructors map;
    return map;
}
