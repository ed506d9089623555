// SPDX-License-Identifier: MIT
#include "settings/HXCUtility.h"

#include "support/TestFiles.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace leafcast;

TEST(FlashTrustFile, HoldsEachPathOnceInUTF16AndOtherTextStaysAsItIs)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"Macromedia/FlashPlayerTrust/PT.cfg"_s);
    const std::pair<QByteArray, QByteArray> cases[] = {
        { "", "FFFE4200" },
        { "FFFE4100", "FFFE41000A004200" },
        { "FEFF0041", "FFFE41000A004200" },
        { "FFFE42004100", "FFFE420041000A004200" },
        { "FFFE41000A004200", "FFFE41000A004200" },
        { "FFFE41", "FFFE41" },
    };
    for (const auto& [before, after] : cases) {
        if (!before.isEmpty())
            writeTestFile(file, QByteArray::fromHex(before));
        HXCUtility::makeDiractoryTrustByFlash(u"B"_s, { folder.path(), folder.path() });
        EXPECT_EQ(readTestFile(file).toHex().toUpper(), after);
    }
}
