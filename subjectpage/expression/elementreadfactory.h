#pragma once

#include "tfelement.h"

#include <QChar>
#include <QObject>
#include <QString>

/// Reads a formula into elements, one at a call.
///
/// The last character read survives from one source to the next: a word at the very start of a source is a
/// call only when that character is null or a splitter.
class ElementReadFactory : public QObject
{
    Q_OBJECT

public:
    /// An element as a plain value. It does not advance when endPosition lies before the position asked for.
    struct Token
    {
        QString text;
        int endPosition = -1;
        TFElement::Type type = TFElement::Variable;
    };

    explicit ElementReadFactory(QObject *parent = nullptr);

    void setSource(const QString &source);
    QString source() const { return m_source; }

    /// The element at \a position, owned by the caller; null for a position outside the source. A stop
    /// character that starts no element gives an empty Variable whose endPosition lies before \a position.
    TFElement *readElement(int position);
    /// The same as a value; \a position must lie inside the source.
    Token readToken(int position);

    /// Leaves the last character read as after reading all of \a source.
    void skip(const QString &source);
    /// Forgets the last character read.
    void reset() { m_lastRead = QChar(); }

private:
    Token readNumber(int position) const;
    Token readFunction(int position) const;
    Token readString(int position) const;
    Token readVariable(int position) const;
    bool startsFunction(QChar c) const;

    QString m_source;
    QChar m_lastRead;
};
