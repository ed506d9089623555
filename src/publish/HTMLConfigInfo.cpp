// SPDX-License-Identifier: MIT
#include "publish/HTMLConfigInfo.h"

#include "base/FileSteps.h"
#include "base/Log.h"
#include "base/TextDecoding.h"
#include "publish/TextTemplate.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString textOf(const QString& templateFile)
    {
        if (templateFile.isEmpty()) {
            LOG_WARN("HTMLConfigInfo", u"the template has no HTML page"_s);
            return {};
        }
        return decodeText(FileSteps::read(templateFile).value_or(QByteArray())).text;
    }

} // namespace

bool HTMLConfigInfo::generateHTMLFrom(const QString& templateFile, const QString& outputFile) const
{
    TextTemplate page(textOf(templateFile));
    page.setItem(u"index.title"_s, iHTMLTitle);
    page.setItem(u"meta.keywords"_s, iHTMLKeywords);
    page.setItem(u"meta.description"_s, iHTMLDescription);
    return FileSteps::writeAtomically(outputFile, page.parse().toUtf8());
}

} // namespace leafcast
