#pragma once

#include <QString>

/// Captions with an expression in braces.
namespace TFCaption {

/// True when there is something between a "{" and a later "}".
bool hasExpression(const QString &caption);

/// The text between the first "{" and the last "}"; the caption must have an expression.
QString expression(const QString &caption);

/// The caption with each expression replaced by \a text. An expression reaches from the first "{" of a line
/// to the line's last "}".
QString replaced(const QString &caption, const QString &text);

} // namespace TFCaption
