#include "tfelement.h"

TFElement::TFElement(Type type, const QString &text, int endPosition, QObject *parent)
    : QObject(parent)
    , m_text(text)
    , m_endPosition(endPosition)
    , m_type(type)
{}
