// SPDX-License-Identifier: MIT
#include "pdf/HiddenPictures.h"

#include "base/FileCopy.h"
#include "base/Sentences.h"
#include "base/SystemError.h"

#include <cerrno>
#include <cstdio>
#include <QFile>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr qint64 largestBitmap = qint64{ 512 } << 20;

    /// Empty, or why it failed.
    QString moveFile(const QString& from, const QString& to)
    {
        if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData())
            == 0)
            return {};
        if (errno != EXDEV)
            return systemErrorText();
        FileCopy copy(from);
        if (!copy.placeAt(to, FileCopy::WhenTaken::Replace))
            return copy.error();
        QFile::remove(from);
        return {};
    }

    RenderedPage described(const QJsonObject& fields, double askedScale)
    {
        return { .written = true,
            .problem = {},
            .width = fields["width"_L1].toInt(),
            .height = fields["height"_L1].toInt(),
            .bytes = fields["bytes"_L1].toInteger(),
            .reduced = fields["scale"_L1].toDouble(askedScale) < askedScale,
            .incomplete = fields["incomplete"_L1].toBool() };
    }

} // namespace

HiddenPictures::HiddenPictures(const PDFImageRep::Options& options)
    : iOptions(options)
    , iFolder(options.workFolder + u"/.drawing-XXXXXX"_s)
{
}

QJsonObject HiddenPictures::renderRequest(int pageIndex, size_t number) const
{
    return { { u"op"_s, u"render"_s }, { u"page"_s, pageIndex }, { u"path"_s, pathOf(number) },
        { u"scale"_s, iOptions.scale }, { u"quality"_s, iOptions.jpeg.quality },
        { u"chroma"_s, iOptions.jpeg.fullChroma ? u"444"_s : u"420"_s },
        { u"maxBytes"_s, largestBitmap } };
}

RenderedPage HiddenPictures::moveTo(
    const QString& path, size_t number, const PDFServiceAnswer& answer) const
{
    if (!answer.isAnswered())
        return { .written = false, .problem = answer.problem };
    const QString failure = moveFile(pathOf(number), path);
    if (!failure.isEmpty())
        return { .written = false,
            .problem = Sentences::tr("its picture can't be written: ") + failure };
    return described(answer.fields, iOptions.scale);
}

void HiddenPictures::drop(size_t number) const
{
    QFile::remove(pathOf(number));
}

QString HiddenPictures::pathOf(size_t number) const
{
    return iFolder.filePath(u"%1.jpg"_s.arg(number));
}

} // namespace leafcast
