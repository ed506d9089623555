// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyEdits.h"

#include "EditorTemplate.h"

using namespace Qt::StringLiterals;
using namespace leafcast;

namespace {

struct PropertyEditsTest : testing::Test {
    PropertyEditsTest() { property.setValue(u"a"_s); }

    FlashTemplateProperty property;
    FlashTemplateProperty other;
    PropertyEdits edits;
    QUndoStack& history = edits.undoStack();
};

} // namespace

TEST_F(PropertyEditsTest, UndoAndRedoAnnounceTheChangeToo)
{
    property.setKey(u"k"_s);
    ChangedKeys changed;
    edits.setValue(property, u"b"_s);
    history.undo();
    EXPECT_EQ(property.value(), u"a"_s);
    history.redo();
    EXPECT_EQ(property.value(), u"b"_s);
    EXPECT_EQ(changed.take().size(), 3);
}

TEST_F(PropertyEditsTest, MakeOneStepOfASession)
{
    edits.beginSession(property);
    for (const QString& typed : { u"ab"_s, u"abc"_s, u"abcd"_s })
        edits.setValue(property, typed);
    edits.endSession(property);
    edits.beginSession(property);
    edits.setValue(property, u"x"_s);
    EXPECT_EQ(history.count(), 2);
    history.undo();
    EXPECT_EQ(property.value(), u"abcd"_s);
    history.undo();
    EXPECT_EQ(property.value(), u"a"_s);
}

TEST_F(PropertyEditsTest, MakeStepsOfTheirOwnOutsideASession)
{
    edits.setValue(property, u"b"_s);
    edits.setValue(property, u"c"_s);
    edits.beginSession(property);
    edits.setValue(other, u"d"_s);
    edits.setValue(other, u"e"_s);
    EXPECT_EQ(history.count(), 4);
}

TEST_F(PropertyEditsTest, LeaveNothingOfASessionThatIsTakenBack)
{
    edits.setValue(other, u"kept"_s);
    edits.beginSession(property);
    edits.setValue(property, u"ab"_s);
    edits.revertSession();
    EXPECT_EQ(property.value(), u"a"_s);
    EXPECT_EQ(history.count(), 1);
    history.undo();
    EXPECT_EQ(other.value(), QString());
}

TEST_F(PropertyEditsTest, KeepTheSessionOfTheNextEditorWhenAnEarlierOneEnds)
{
    edits.beginSession(other);
    edits.beginSession(property);
    edits.endSession(other);
    edits.setValue(property, u"ab"_s);
    edits.setValue(property, u"abc"_s);
    EXPECT_EQ(history.count(), 1);
}
