// SPDX-License-Identifier: MIT
#include "support/TemporaryResources.h"

#include "support/TestFiles.h"

using namespace Qt::StringLiterals;

namespace leafcast {

TemporaryResources::TemporaryResources()
    : iFormerFolder(qgetenv("LEAFCAST_RESOURCES"))
{
    qputenv("LEAFCAST_RESOURCES", iFolder.path().toUtf8());
}

TemporaryResources::~TemporaryResources()
{
    qputenv("LEAFCAST_RESOURCES", iFormerFolder);
}

QString TemporaryResources::path(const QString& relativePath) const
{
    return iFolder.filePath(relativePath);
}

QString TemporaryResources::addFile(const QString& relativePath, const QByteArray& content) const
{
    return writeTestFile(path(relativePath), content);
}

void TemporaryResources::addTemplate(const QString& name, const QByteArray& properties) const
{
    addFile(u"AppFiles/Templates/%1/flashTemplate.xml"_s.arg(name),
        "<template><info><htmlPath>index.html</htmlPath><swfPath>book.swf</swfPath>"
        "<defaultStyle>Plain</defaultStyle><macAppFilesFolder>mac</macAppFilesFolder>"
        "<mobileTmplFilesPath>mobile</mobileTmplFilesPath></info>"
        "<properties>"
            + properties + "</properties></template>");
}

QByteArray TemporaryResources::property(
    const QByteArray& type, const QByteArray& key, const QByteArray& value)
{
    return "<property type=\"" + type + "\"><key>" + key + "</key><title/><desc/><value>" + value
        + "</value><valueSource/><defalutValue/></property>";
}

QByteArray TemporaryResources::group(const QByteArray& key, const QByteArray& properties)
{
    return "<property type=\"pt_composite\"><key>" + key
        + "</key><title/><desc/><value/><valueSource/><defalutValue/><childProperties>" + properties
        + "</childProperties></property>";
}

} // namespace leafcast
