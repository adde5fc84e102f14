#pragma once

#include <QObject>
#include <QString>

/// One token of a formula.
class TFElement : public QObject
{
    Q_OBJECT

public:
    /// The closed set of element types.
    enum Type {
        String = 1,    ///< [name]
        Number = 6,    ///< digits and "."
        Variable = 8,  ///< a word in an operator position
        Operator = 9,  ///< + - * / %
        Function = 10, ///< a word at the start or behind a splitter, up to its closing parenthesis
        Splitor = 11   ///< ( ) , :
    };
    Q_ENUM(Type)

    TFElement(Type type, const QString &text, int endPosition, QObject *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }
    Type type() const { return m_type; }
    void setType(Type type) { m_type = type; }
    /// Index in the source of the element's last character.
    int endPosition() const { return m_endPosition; }

private:
    QString m_text;
    int m_endPosition;
    Type m_type;
};
