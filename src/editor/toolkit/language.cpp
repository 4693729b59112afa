#include "editor/toolkit/language.h"

#include <QCoreApplication>
#include <QLatin1Char>
#include <QLibraryInfo>
#include <QString>
#include <string>
#include <string_view>

#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr std::string_view kNamespace = "fragsmith::";

}  // namespace

QString Language::OwnTexts::translate(const char* context, const char* source,
                                      const char* disambiguation,
                                      int count) const {
  std::string_view name = context == nullptr ? "" : context;
  if (name.starts_with(kNamespace)) name.remove_prefix(kNamespace.size());
  return QTranslator::translate(std::string(name).c_str(), source,
                                disambiguation, count);
}

Language::Language(const QStringList& languages) {
  const QString first = languages.value(0);
  const QString file = QStringLiteral(":/language/fragsmith_%1.qm")
                           .arg(first.section(QLatin1Char('-'), 0, 0));
  if (!own_.load(file)) return;
  // The toolkit knows more of its texts than we have, where it is installed
  // with them. The translator that comes last is asked first.
  if (boxes_.load(QLocale(first), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&boxes_);
  }
  QCoreApplication::installTranslator(&own_);
  LocalizeBy([](std::string_view english) {
    return QCoreApplication::translate("libraries",
                                       std::string(english).c_str())
        .toStdString();
  });
}

Language::~Language() { LocalizeBy(nullptr); }

}  // namespace fragsmith
