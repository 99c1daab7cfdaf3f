#include "platform/qt/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string>

#include "support/Translation.h"

namespace kinesta {
namespace {

bool install(const QString& name, const QString& folder) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    return translator->load(QLocale(), name, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(translator);
}

}  // namespace

void installTranslations(const std::filesystem::path& folder) {
    if (!install(QStringLiteral("kinesta"), QString::fromStdString(folder.string())))
        return;
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    setTranslator([](std::string_view english) {
        const std::string key(english);
        return QCoreApplication::translate("core", key.c_str()).toStdString();
    });
}

}  // namespace kinesta
