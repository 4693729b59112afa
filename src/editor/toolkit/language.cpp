#include "editor/toolkit/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLatin1String>
#include <QLibraryInfo>
#include <QString>
#include <QTranslator>
#include <string>
#include <string_view>

#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr std::string_view kNamespace = "fragsmith::";

/// Our texts are listed by class, without the namespace, which the toolkit
/// asks with.
class OwnTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* source,
                    const char* disambiguation, int count) const override {
    std::string_view name = context == nullptr ? "" : context;
    if (name.starts_with(kNamespace)) name.remove_prefix(kNamespace.size());
    return QTranslator::translate(std::string(name).c_str(), source,
                                  disambiguation, count);
  }
};

QString FileOf(const QString& language) {
  return QStringLiteral(":/language/fragsmith_%1.qm")
      .arg(language.section(QLatin1Char('-'), 0, 0));
}

}  // namespace

bool HasLanguage(const QString& language) {
  return QFile::exists(FileOf(language));
}

void SpeakLanguage(const QStringList& languages) {
  if (languages.isEmpty() || !HasLanguage(languages.front())) return;
  QCoreApplication* const application = QCoreApplication::instance();
  // The later one is asked first.
  auto* const boxes = new QTranslator(application);
  if (boxes->load(QLocale(languages.front()), QStringLiteral("qtbase"),
                  QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(boxes);
  }
  auto* const own = new OwnTexts(application);
  if (!own->load(FileOf(languages.front()))) return;
  QCoreApplication::installTranslator(own);
  LocalizeBy([](std::string_view english) {
    return QCoreApplication::translate("libraries",
                                       std::string(english).c_str())
        .toStdString();
  });
}

}  // namespace fragsmith
