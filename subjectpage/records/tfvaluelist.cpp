#include "tfvaluelist.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {
constexpr int BlockSize = 64 * 1024;
}

QVariant TFValueList::at(size_t index) const
{
    const Value &value = m_values[index];
    switch (value.kind) {
    case Kind::Invalid:
        return {};
    case Kind::Null:
        return QVariant::fromValue(nullptr);
    case Kind::Bool:
        return value.integer != 0;
    case Kind::Integer:
        return value.integer;
    case Kind::Number:
        return value.number;
    case Kind::Text:
        return QString::fromUtf8(value.text, value.length);
    case Kind::Other:
        return m_others[size_t(value.integer)];
    }
    return {};
}

double TFValueList::number(size_t index) const
{
    const Value &value = m_values[index];
    if (value.kind == Kind::Number)
        return value.number;
    return value.kind == Kind::Integer ? double(value.integer) : at(index).toDouble();
}

void TFValueList::append(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        m_values.push_back({{0}, 0, Kind::Invalid});
        return;
    case QMetaType::Nullptr:
        return appendNull();
    case QMetaType::Bool:
        return appendBool(value.toBool());
    case QMetaType::LongLong:
        return appendInteger(value.toLongLong());
    case QMetaType::Double:
        return appendNumber(value.toDouble());
    case QMetaType::QString: {
        const QByteArray utf8 = value.toString().toUtf8();
        // A lone surrogate, a byte order mark at the front and a null text would not come back.
        if (!value.isNull() && QString::fromUtf8(utf8) == value.toString())
            return appendText(utf8.constData(), utf8.size());
        break;
    }
    default:
        break;
    }
    m_values.push_back({{qint64(m_others.size())}, 0, Kind::Other});
    m_others.push_back(value);
}

void TFValueList::appendNumber(double value)
{
    Value cell{{0}, 0, Kind::Number};
    cell.number = value;
    m_values.push_back(cell);
}

void TFValueList::appendText(const char *utf8, int length)
{
    Value cell{{0}, length, Kind::Text};
    cell.text = keep(utf8, length);
    m_values.push_back(cell);
}

const char *TFValueList::keep(const char *text, int length)
{
    if (!m_free || m_freeBytes < length) {
        m_freeBytes = std::max(length, BlockSize);
        m_blocks.emplace_back(new char[size_t(m_freeBytes)]);
        m_free = m_blocks.back().get();
    }
    std::memcpy(m_free, text, size_t(length));
    m_freeBytes -= length;
    return std::exchange(m_free, m_free + length);
}
