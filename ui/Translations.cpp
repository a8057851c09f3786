#include "Translations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>

namespace {

QString toolkitTranslations() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

}  // namespace

Translations::Translations(const QLocale& locale) {
    for (const QString& name : locale.uiLanguages()) {
        const QLocale language(name);
        if (language.language() == QLocale::English || language.language() == QLocale::C) return;
        if (!program.load(language, QStringLiteral("sudoku-vantu"), QStringLiteral("_"), QStringLiteral(":/i18n")))
            continue;
        QCoreApplication::installTranslator(&program);
        loaded = QFileInfo(program.filePath()).completeBaseName().section('_', 1, -1);
        if (toolkit.load(language, QStringLiteral("qtbase"), QStringLiteral("_"), toolkitTranslations()))
            QCoreApplication::installTranslator(&toolkit);
        return;
    }
}

Translations::~Translations() {
    QCoreApplication::removeTranslator(&toolkit);
    QCoreApplication::removeTranslator(&program);
}
