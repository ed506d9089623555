// SPDX-License-Identifier: MIT
#include "app/Language.h"
#include "base/Sentences.h"

#include <gtest/gtest.h>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace leafcast {

class LanguageTest : public testing::Test {
protected:
    void TearDown() override
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>())
            delete translator;
    }

    static QString spoken(const QStringList& languages)
    {
        speakFirstOf(languages);
        return Sentences::tr("%1 pages").arg(3);
    }
};

TEST_F(LanguageTest, SpeaksTheFirstLanguageThatItKnows)
{
    EXPECT_EQ(spoken({ u"de-AT"_s, u"de"_s, u"en"_s }), u"3 Seiten"_s);
}

TEST_F(LanguageTest, LeavesEnglishToWhoPrefersItToOthers)
{
    EXPECT_EQ(spoken({ u"en-GB"_s, u"en"_s, u"de"_s }), u"3 pages"_s);
    EXPECT_EQ(spoken({ u"fi-FI"_s, u"C"_s }), u"3 pages"_s);
}

TEST_F(LanguageTest, TellsTheScriptsOfChineseApart)
{
    EXPECT_EQ(spoken({ u"zh-Hant-TW"_s, u"zh-TW"_s, u"en"_s }), u"3 pages"_s);
    EXPECT_EQ(spoken({ u"fi"_s, u"zh-Hans-CN"_s, u"zh-CN"_s, u"zh"_s }), u"3 页"_s);
}

} // namespace leafcast
