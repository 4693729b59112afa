#ifndef FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_
#define FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_

#include <QLocale>
#include <QStringList>

namespace fragsmith {

/// Whether there are texts for the language ("de", "de-AT").
bool HasLanguage(const QString& language);

/// Makes the texts of the window, of the libraries below it and of the
/// toolkit's own boxes speak the first of the languages; English where there
/// are no texts for that one. To be called before any text is made.
void SpeakLanguage(
    const QStringList& languages = QLocale::system().uiLanguages());

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_
