#pragma once

#include <QString>

namespace service {

/// One word of a filter text.
struct FilterToken
{
    enum Kind { Open, Close, Symbol, Name, Parameter, Number, Text, Date, End, Bad };
    Kind kind = End;
    QString text;     ///< the word; of a Text the content, of a Bad one what is wrong with it
    int position = 0; ///< 1-based
};

/// Splits a filter text into words.
class FilterLexer
{
public:
    explicit FilterLexer(const QString &text)
        : m_text(text)
    {}

    /// The next word; End again and again once the text is used up.
    FilterToken next();

private:
    FilterToken word();
    FilterToken parameter();
    FilterToken quoted(QChar close, FilterToken::Kind kind);
    FilterToken symbol();
    QString takeName();
    FilterToken token(FilterToken::Kind kind, const QString &text, int start) const;

    QString m_text;
    int m_at = 0;
};

} // namespace service
