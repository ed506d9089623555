// SPDX-License-Identifier: MIT
// Writes one book twice, as the desktop application does after a setting was changed, and prints
// the seconds of both. Usage: second_publish FILE.pdf FOLDER

#include "pages/import/ImportPDFOperation.h"
#include "publish/FlashBookOutput.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

constexpr qint32 ImportDPI = 144;
constexpr qint32 HighQuality = 85;

double writeBook(const ImportPDFOperation& import, const std::shared_ptr<FlashTemplate>& settings,
    const QString& folder)
{
    const auto start = std::chrono::steady_clock::now();
    FlashBookOutput writer(import.flashPageSource(), settings, folder, QString());
    writer.setHTMLConfig(std::make_shared<HTMLConfigInfo>());
    writer.setFlashPagesAnnotations(import.flashPagesAnnotation());
    writer.setFlashOutline(import.flashOutline());
    writer.ouputTheBook();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: second_publish FILE.pdf FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    ImportPDFOperation import(arguments[1], u"ALL"_s, ImportDPI, HighQuality);
    import.setImportLinks(true);
    import.setImportBookmarks(true);
    import.main();
    if (!import.flashPageSource() || import.flashPageSource()->normalPages().empty())
        return EXIT_FAILURE;

    const QString folder = QDir(arguments[2]).filePath(u"book"_s);
    QDir().mkpath(folder);
    const auto settings = std::make_shared<FlashTemplate>();
    const double first = writeBook(import, settings, folder);
    if (!settings->setPropertyValue(u"backgroundColor"_s, u"0x336699"_s))
        return EXIT_FAILURE;
    const double second = writeBook(import, settings, folder);
    std::printf("{\"first\": %.4f, \"second\": %.4f}\n", first, second);
    return EXIT_SUCCESS;
}
