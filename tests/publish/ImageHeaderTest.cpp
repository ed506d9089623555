// SPDX-License-Identifier: MIT
#include "publish/ImageHeader.h"

#include "support/TemporaryResources.h"

#include <gtest/gtest.h>
#include <QBuffer>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

QByteArray picture(const char* format, QSize size, double dotsPerInch)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(dotsPerInch * inchesPerMetre));
    image.setDotsPerMeterY(qRound(dotsPerInch * inchesPerMetre));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

class ImageHeaderTest : public testing::Test {
protected:
    QSize points(const QByteArray& bytes) const
    {
        return ImageHeader::sizeInPoints(folder.addFile(u"picture"_s, bytes));
    }

    TemporaryResources folder;
};

} // namespace

TEST_F(ImageHeaderTest, TakesTheDensityIntoAccountAndTruncates)
{
    EXPECT_EQ(points(picture("JPG", { 768, 1025 }, 72)), QSize(768, 1025));
    EXPECT_EQ(points(picture("JPG", { 301, 1025 }, 144)), QSize(150, 512));
    // 2835 pixels a metre is what PNG makes of 72 dpi.
    EXPECT_EQ(points(picture("PNG", { 768, 1025 }, 72)), QSize(768, 1025));
    EXPECT_EQ(points(picture("PNG", { 301, 1025 }, 144)), QSize(150, 512));
    EXPECT_EQ(points(picture("BMP", { 30, 20 }, 72)), QSize(30, 20));
}

TEST_F(ImageHeaderTest, ReadsTheUnitOfAJPEG)
{
    QByteArray jpeg = picture("JPG", { 254, 100 }, 100);
    jpeg[13] = 2; // dots a centimetre
    EXPECT_EQ(points(jpeg), QSize(72, 28));
    jpeg[13] = 0; // only an aspect ratio
    EXPECT_EQ(points(jpeg), QSize(254, 100));
    jpeg[13] = 1;
    jpeg[14] = jpeg[15] = jpeg[16] = jpeg[17] = 0;
    EXPECT_EQ(points(jpeg), QSize(254, 100));
}

TEST_F(ImageHeaderTest, IsZeroForWhatIsNoPicture)
{
    EXPECT_EQ(points("not a picture"), QSize(0, 0));
    EXPECT_EQ(points(""), QSize(0, 0));
    EXPECT_EQ(points(picture("JPG", { 9, 9 }, 72).first(12)), QSize(0, 0));
    EXPECT_EQ(ImageHeader::sizeInPoints(folder.path(u"missing"_s)), QSize(0, 0));
}
