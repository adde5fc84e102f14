#pragma once

#include <QVariant>

namespace service {

/// A value as the database gives it, read where it stands: a text belongs to the row and lives until the next
/// step.
struct StoredValue
{
    enum Kind { Null, Whole, Real, Text };

    static StoredValue ofWhole(qint64 number)
    {
        StoredValue value;
        value.kind = Whole;
        value.whole = number;
        return value;
    }

    static StoredValue ofReal(double number)
    {
        StoredValue value;
        value.kind = Real;
        value.real = number;
        return value;
    }

    static StoredValue ofText(const char *utf8, int bytes)
    {
        StoredValue value;
        value.kind = Text;
        value.text = utf8;
        value.size = bytes;
        return value;
    }

    /// A qlonglong, a double, a QString, or a null variant.
    QVariant toVariant() const
    {
        switch (kind) {
        case Whole:
            return whole;
        case Real:
            return real;
        case Text:
            return QString::fromUtf8(text, size);
        default:
            return QVariant(QVariant::String);
        }
    }

    Kind kind = Null;
    int size = 0; ///< bytes of the text
    union {
        qint64 whole = 0;
        double real;
        const char *text; ///< what is meant for UTF-8, but not everything in a database is
    };
};

} // namespace service
