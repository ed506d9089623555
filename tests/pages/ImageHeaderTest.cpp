// SPDX-License-Identifier: MIT
#include "pages/ImageHeader.h"

#include "support/TestFiles.h"
#include "support/TestPicture.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace leafcast {

class ImageHeaderTest : public testing::Test {
protected:
    void expectPoints(const QByteArray& bytes, QSize size) const
    {
        const QString file = writeTestFile(folder.filePath(u"picture"_s), bytes);
        EXPECT_EQ(ImageHeader::sizeInPoints(file), size);
    }
    QTemporaryDir folder;
};

TEST_F(ImageHeaderTest, TakesTheDensityIntoAccountAndTruncates)
{
    expectPoints(testPicture({ 301, 1025 }, 144), { 150, 512 });
    // 2835 pixels a metre is what PNG makes of 72 dpi.
    expectPoints(testPicture({ 768, 1025 }, 72, "PNG"), { 768, 1025 });
    QByteArray jpeg = testPicture({ 254, 100 }, 100);
    jpeg[13] = 2; // dots a centimetre
    expectPoints(jpeg, { 72, 28 });
    jpeg[13] = 0; // only an aspect ratio
    expectPoints(jpeg, { 254, 100 });
    jpeg[13] = 1;
    jpeg[14] = jpeg[15] = jpeg[16] = jpeg[17] = 0;
    expectPoints(jpeg, { 254, 100 });
    for (const QByteArray& none : { "not a picture"_ba, ""_ba, jpeg.first(12) })
        expectPoints(none, { 0, 0 });
}

TEST_F(ImageHeaderTest, MeasuresAPictureThatLiesOnItsSideAsItIsShown)
{
    QByteArray jpeg = testPicture({ 400, 300 });
    const qsizetype behindJFIF = 20;
    jpeg.insert(behindJFIF,
        QByteArray::fromHex("ffe10022457869660000" // Exif
                            "4d4d002a000000080001" // one entry
                            "011200030000000100060000" // orientation 6: turned to the right
                            "00000000"));
    expectPoints(jpeg, { 300, 400 });
}

} // namespace leafcast
