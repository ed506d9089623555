// SPDX-License-Identifier: MIT
#include "templates/ui/SelectTemplateWindowDelegate.h"
#include "support/TemporaryResources.h"

#include <gtest/gtest.h>
#include <QBuffer>
#include <QImage>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace leafcast {

class SelectTemplateWindowDelegateTest : public testing::Test {
protected:
    SelectTemplateWindowDelegateTest()
    {
        resources.addTemplate(u"float"_s, {});
        resources.addTemplate(u"Slide"_s, {});
        resources.addFile(u"AppFiles/Templates/float/style/player.css"_s, "");
        for (const QString& style : { u"float/Night"_s, u"float/Wood"_s, u"Slide/Studio"_s })
            resources.addFile(u"AppFiles/Styles/%1/tmplSetting.txt"_s.arg(style), "");
        resources.addFile(u"AppFiles/Styles/float/Wood/shot.jpg"_s, picture());
    }

    static QByteArray picture()
    {
        QImage image(64, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        QBuffer buffer;
        image.save(&buffer, "JPEG");
        return buffer.data();
    }

    QListView& list() { return *chooser.findChild<QListView*>(u"iTableViewTmpls"_s); }
    QListView& gallery() { return *chooser.findChild<QListView*>(u"iImgBrowserView"_s); }
    QPushButton& ok() { return *chooser.findChild<QPushButton*>(u"btnOK"_s); }

    static QStringList texts(const QAbstractItemView& view)
    {
        QStringList all;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            all.append(view.model()->index(row, 0).data().toString());
        return all;
    }

    TemporaryResources resources;
    SelectTemplateWindowDelegate chooser;
};

TEST_F(SelectTemplateWindowDelegateTest, OpensAtTheTemplateInAnyLetterCaseAndAtItsStyle)
{
    chooser.prepairToTmpl(u"sLIDE"_s);
    EXPECT_EQ(texts(list()), QStringList({ u"Slide"_s, u"float"_s }))
        << "folders with a description";
    EXPECT_EQ(chooser.tmplList().rowCount(), 3) << "every folder";
    EXPECT_EQ(list().currentIndex().data(), u"Slide"_s);
    EXPECT_FALSE(ok().isEnabled());
    EXPECT_EQ(chooser.selectedStyle(), QString());

    chooser.prepairToTmpl(u"float"_s, u"Wood"_s);
    EXPECT_EQ(texts(gallery()), QStringList({ u"Night"_s, u"Wood"_s }));
    EXPECT_TRUE(ok().isEnabled());
    EXPECT_EQ(chooser.selectedStyle(), resources.path(u"AppFiles/Styles/float/Wood/shot.jpg"_s));
    EXPECT_EQ(chooser.selectedItemIndex(), 1);
}

TEST_F(SelectTemplateWindowDelegateTest, ShowsTheStylesOfTheTemplateThatIsSelected)
{
    chooser.prepairToTmpl(u"float"_s, u"Wood"_s);
    list().setCurrentIndex(list().model()->index(0, 0));
    EXPECT_EQ(texts(gallery()), QStringList(u"Studio"_s));
    EXPECT_FALSE(ok().isEnabled()) << "nothing is selected there yet";
    const auto hasPicture
        = [&] { return !chooser.tmplStyles().items()[1].imageRepresentation().isNull(); };
    chooser.prepairToTmpl(u"float"_s);
    EXPECT_TRUE(QTest::qWaitFor(hasPicture));
    EXPECT_TRUE(chooser.tmplStyles().items()[0].imageRepresentation().isNull());
}

TEST_F(SelectTemplateWindowDelegateTest, EndsByItsButtonsAndByADoubleClick)
{
    QSignalSpy ended(&chooser, &QDialog::finished);
    const auto codes = [&] {
        QList<int> all;
        for (const auto& arguments : ended)
            all.append(arguments[0].toInt());
        return all;
    };
    chooser.prepairToTmpl(u"float"_s, u"Night"_s);
    chooser.open();
    ok().click();
    chooser.open();
    chooser.findChild<QPushButton*>(u"btnCancel"_s)->click();
    chooser.open();
    Q_EMIT gallery().doubleClicked(gallery().model()->index(1, 0));
    EXPECT_EQ(codes(), QList<int>({ 1, 0, 1 }));
    EXPECT_EQ(chooser.selectedItemIndex(), 1);
}

TEST_F(SelectTemplateWindowDelegateTest, FindsTemplatesThatWereAddedAndLeavesTheGalleryAsItIs)
{
    chooser.prepairToTmpl(u"float"_s, u"Wood"_s);
    resources.addTemplate(u"scroll"_s, {});
    chooser.findChild<QPushButton*>(u"btnRefresh"_s)->click();
    EXPECT_EQ(texts(list()), QStringList({ u"Slide"_s, u"float"_s, u"scroll"_s }));
    EXPECT_EQ(list().currentIndex().data(), u"float"_s);
    EXPECT_TRUE(ok().isEnabled());
}

} // namespace leafcast
