// SPDX-License-Identifier: MIT
#include "app/Language.h"

#include "base/Log.h"

#include <memory>
#include <optional>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    // The suffix of a catalogue's file name; empty for English.
    std::optional<QString> catalogueOf(const QLocale& locale)
    {
        switch (locale.language()) {
        case QLocale::English:
            return QString();
        case QLocale::German:
            return u"de"_s;
        case QLocale::Chinese:
            if (locale.script() == QLocale::SimplifiedHanScript)
                return u"zh_CN"_s;
            return std::nullopt;
        default:
            return std::nullopt;
        }
    }

    bool install(const QString& name, const QString& folder)
    {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        return translator->load(name, folder)
            && QCoreApplication::installTranslator(translator.release());
    }

    void speak(const QString& catalogue)
    {
        if (!install(u"qtbase_"_s + catalogue, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            LOG_INFO("Language", u"Qt's own texts are not installed in %1"_s.arg(catalogue));
        if (!install(u"leafcast_"_s + catalogue, u":/translations"_s))
            LOG_WARN("Language", u"the texts in %1 can't be used"_s.arg(catalogue));
    }

} // namespace

void speakFirstOf(const QStringList& languages)
{
    for (const QString& language : languages) {
        const std::optional<QString> catalogue = catalogueOf(QLocale(language));
        if (!catalogue)
            continue;
        if (!catalogue->isEmpty())
            speak(*catalogue);
        return;
    }
}

} // namespace leafcast
