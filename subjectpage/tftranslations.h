#pragma once

/// The catalogues of this system's own texts, kept in its resources: Chinese and English.
namespace TFTranslations {

/// Puts the catalogue of the host's language (TFServiceConfig) in the place of the one before: Chinese unless
/// the host is English. Call it before a widget is made; those there already keep their texts. False where
/// there is no application object, or the catalogue can't be read (with a warning).
bool install();

/// Takes the catalogue out again; the texts are then those of the sources.
void remove();

} // namespace TFTranslations
