// SPDX-License-Identifier: MIT
#include "settings/FlashTrustFile.h"

#include "base/FileSteps.h"
#include "base/Log.h"

#include <QDir>
#include <QStringConverter>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString trustFolderBelow(const QString& base)
    {
        return QDir::cleanPath(base + u"/Macromedia/FlashPlayerTrust"_s);
    }

    QByteArray encoded(const QString& text)
    {
        QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        return encoder(text);
    }

} // namespace

FlashTrustFolders FlashTrustFolders::standard()
{
    const QStringList folders
        = qEnvironmentVariable("XDG_DATA_DIRS").split(u':', Qt::SkipEmptyParts);
    const QString first = folders.isEmpty() ? u"/usr/local/share"_s : folders.first();
    return { first, first };
}

FlashTrustFile::FlashTrustFile(const FlashTrustFolders& folders)
    : iFolders(folders)
{
    const bool isFound = !folders.localDomainFolder.isEmpty();
    const QString base = isFound ? folders.localDomainFolder : folders.fixedFolder;
    iFile = trustFolderBelow(base) + u"/PT.cfg"_s;
}

void FlashTrustFile::add(const QString& path) const
{
    FileSteps::makeFolders(trustFolderBelow(iFolders.fixedFolder));
    FileSteps::makeFolders(QFileInfo(iFile).path());
    LOG_DEBUG("HXCUtility", u"trust folder is:%1"_s.arg(iFile));

    const List list = read();
    if (list.paths.contains(path))
        return;
    if (list.isReadable)
        (void)FileSteps::writeAtomically(
            iFile, encoded((list.paths + QStringList(path)).join(u'\n')));
    if (iFolders.localDomainFolder.isEmpty())
        copyBesideFixedFolder();
    LOG_DEBUG("HXCUtility",
        FileSteps::exists(iFile) ? u"file is exits!!"_s : u"file doest not exits!!!!!!!!!"_s);
}

FlashTrustFile::List FlashTrustFile::read() const
{
    if (!FileSteps::exists(iFile))
        return {};
    const auto bytes = FileSteps::read(iFile);
    if (!bytes)
        return { .isReadable = false, .paths = {} };
    QStringDecoder decoder(QStringConverter::Utf16);
    const QString text = decoder(*bytes);
    if (decoder.hasError() || bytes->size() % 2 != 0) {
        LOG_WARN("HXCUtility", u"%1 is not UTF-16 text, left as it is"_s.arg(iFile));
        return { .isReadable = false, .paths = {} };
    }
    return { .isReadable = true, .paths = text.split(u'\n') };
}

/// The copy lies beside the trust folder, not in it, on purpose: it is part of the convention.
void FlashTrustFile::copyBesideFixedFolder() const
{
    FileSteps::copyFile(iFile, trustFolderBelow(iFolders.fixedFolder) + u".PT.cfg"_s);
}

} // namespace leafcast
