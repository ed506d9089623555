// SPDX-License-Identifier: MIT
#include "templates/ui/HowtoPreveiwWindowDelegate.h"
#include "templates/ui/QRCodeView.h"

#include <gtest/gtest.h>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace leafcast {

class HowtoPreveiwWindowDelegateTest : public testing::Test {
protected:
    QString text(const QString& name) { return sheet.findChild<QLabel*>(name)->text(); }
    bool shows(const QString& name) { return sheet.findChild<QWidget*>(name)->isVisible(); }

    HowtoPreveiwWindowDelegate sheet;
};

TEST_F(HowtoPreveiwWindowDelegateTest, LeadsToEachAddressAndCopiesIt)
{
    sheet.open();
    EXPECT_TRUE(shows(u"notice"_s));
    sheet.showAddresses({ u"http://192.168.1.5:8765/"_s, u"http://127.0.0.1:8765/"_s });
    EXPECT_FALSE(shows(u"notice"_s));
    EXPECT_TRUE(text(u"lblwebsite"_s).contains(u"http://192.168.1.5:8765/"_s));
    EXPECT_FALSE(shows(u"reach"_s));
    sheet.findChild<QComboBox*>(u"addresses"_s)->setCurrentIndex(1);
    EXPECT_TRUE(shows(u"reach"_s)) << "no other device gets there";
    sheet.findChild<QPushButton*>(u"btnCopy"_s)->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"http://127.0.0.1:8765/"_s);
    sheet.showFailure(u"no port is free"_s);
    EXPECT_TRUE(text(u"notice"_s).contains(u"no port is free"_s));
    EXPECT_TRUE(shows(u"notice"_s));
}

TEST(QRCodeViewTest, HasTheFinderPatternsInItsCornersAndNothingForWhatIsTooLong)
{
    const auto modules = qrModules(u"http://192.168.1.5:8765/"_s);
    ASSERT_GE(modules.size(), 21U);
    const size_t last = modules.size() - 1;
    for (const auto& [y, x] :
        { std::pair<size_t, size_t>{ 0, 0 }, { 0, last - 6 }, { last - 6, 0 } }) {
        EXPECT_TRUE(
            modules[y][x] && modules[y][x + 6] && modules[y + 6][x] && modules[y + 3][x + 3]);
        EXPECT_FALSE(modules[y + 1][x + 1] || modules[y + 5][x + 5]);
    }
    EXPECT_NE(modules, qrModules(u"http://192.168.1.6:8765/"_s));
    EXPECT_TRUE(qrModules(QString(5000, u'x')).empty());
}

} // namespace leafcast
