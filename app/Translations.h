#pragma once

#include <QStringList>
#include <QTranslator>

/// The program's texts, and Qt's own, in the user's language for as long as this lives. Texts that are
/// stored or compared stay as they are.
class Translations
{
public:
    /// Needs an application object. Takes the first of the languages ("de-AT", "de") that the program speaks.
    explicit Translations(const QStringList& languages = wantedLanguages());

    /// What the environment asks for; nothing in the C locale, whatever it says besides.
    [[nodiscard]] static QStringList wantedLanguages();
    /// "de", or "en" without a language that the program speaks.
    [[nodiscard]] QString language() const { return chosen; }

private:
    QString chosen;
    QTranslator own, ofQt;
};
