#ifndef FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_
#define FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace fragsmith {

/// While it is there, the window, the libraries below it and the toolkit's own
/// boxes speak the first of the languages ("de-AT", "de"); English where there
/// are no texts for that one. Made before any text is.
class Language {
 public:
  explicit Language(
      const QStringList& languages = QLocale::system().uiLanguages());
  ~Language();
  Language(const Language&) = delete;
  Language& operator=(const Language&) = delete;

 private:
  /// Our texts are listed by class, without the namespace, which the toolkit
  /// asks with.
  class OwnTexts : public QTranslator {
   public:
    QString translate(const char* context, const char* source,
                      const char* disambiguation, int count) const override;
  };

  QTranslator boxes_;
  OwnTexts own_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_LANGUAGE_H_
