// SPDX-License-Identifier: MIT
#include "publish/ReaderDataWriter.h"

#include <gtest/gtest.h>
#include <QBuffer>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

std::vector<ReaderPage> samplePages()
{
    ReaderPage first{ 5, u"v"_s, u"files/page/5.jpg"_s, 1224, 1584, {}, {} };
    first.links.push_back(
        { { 0.1, 0.075, 0.2, 0.05 }, u"https://leaf.example/?a=1&b=<2>"_s, 0, 0 });
    first.links.push_back({ { 0, 1.0 / 3, 0.25, 2.0 / 3 }, {}, 7, 3 });
    first.links.push_back({ { 0.5, 0.5, 0.5, 0.5 }, {}, 40, 0 });
    first.lines.push_back(
        { u"Hello world"_s, { { 0.1, 0.2, 0.3, 0.04 }, { 0.41, 0.2, 0.5, 0.04 } } });
    first.lines.push_back(
        { u"\"\u00C9t\u00E9\\</script>\u2028\u2029\U0001F343"_s, { { 0.1, 0.3, 1, 0.0001 } } });

    ReaderPage second{ 6, u"6"_s, u"files/page/6.jpg"_s, 1584, 1224, {}, {} };
    second.lines.push_back({ u"Landscape"_s, { { 0, 0, 0.5, 0.5 } } });
    return { first, second, { 7, u"7"_s, u"files/page/7.jpg"_s, 0, 0, {}, {} } };
}

std::vector<ReaderOutlineItem> sampleOutline()
{
    return { { u"Chapter <1>"_s, 5, 1,
                 { { u"Section"_s, 7, 3, {} }, { u"Not in the book"_s, 40, 0, {} } } },
        { u"No target"_s, 0, 0, {} } };
}

class ShortDevice : public QIODevice {
public:
    ShortDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override { return std::min<qint64>(size, 100); }
};

} // namespace

// The player's tests read the same file.
TEST(ReaderDataWriter, WritesWhatThePlayerReads)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ReaderDataWriter writer(buffer);
    for (const ReaderPage& page : samplePages())
        writer.addPage(page);
    writer.finish(sampleOutline());

    QFile fixture(QStringLiteral(LEAFCAST_FIXTURES "/reader-data.js"));
    ASSERT_TRUE(fixture.open(QIODevice::ReadOnly));
    EXPECT_EQ(buffer.data(), fixture.readAll());
}

TEST(ReaderDataWriter, WritesAnEmptyBook)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ReaderDataWriter(buffer).finish({});
    EXPECT_EQ(buffer.data(), "var bookData = {\"version\":1,\"pages\":[],\"outline\":[]};\n");
}

TEST(ReaderDataWriter, NoticesADeviceThatTakesLessThanItIsGiven)
{
    ShortDevice device;
    ReaderDataWriter writer(device);
    EXPECT_TRUE(writer.isWhole());
    writer.addPage(samplePages().front());
    EXPECT_FALSE(writer.isWhole());
    writer.finish({});
    EXPECT_FALSE(writer.isWhole());
}
