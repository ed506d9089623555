// SPDX-License-Identifier: MIT
#include "templates/ui/PropertyHelp.h"

#include "templates/FlashTemplateProperty.h"
#include "templates/ui/ProblemMark.h"
#include "templates/ui/PropertyProblem.h"
#include "templates/ui/TemplateText.h"

#include <QAction>
#include <QLabel>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 12;
    constexpr int linesOfHelp = 5;
    constexpr int lineHeightPercent = 128; // of text that is read, not scanned

    QTextEdit* makeText(QWidget* parent)
    {
        auto* text = new QTextEdit(parent);
        text->setObjectName(u"toolTip"_s);
        text->setAccessibleName(PropertyHelp::tr("Description of the selected setting"));
        text->setReadOnly(true);
        text->setTabChangesFocus(true);
        text->setFrameShape(QFrame::NoFrame);
        text->document()->setDocumentMargin(0);
        text->viewport()->setAutoFillBackground(false);
        text->setPlaceholderText(PropertyHelp::tr("Select a setting to read what it does."));
        text->setFixedHeight(
            text->fontMetrics().lineSpacing() * linesOfHelp * lineHeightPercent / 100);
        return text;
    }

    void setReadableText(QTextEdit& edit, const QString& text)
    {
        edit.setPlainText(text);
        QTextBlockFormat lines;
        lines.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
        QTextCursor all(edit.document());
        all.select(QTextCursor::Document);
        all.mergeBlockFormat(lines);
    }

    QLabel* makeProblem(QWidget* parent)
    {
        auto* label = new QLabel(parent);
        label->setObjectName(u"lblProblem"_s);
        label->setWordWrap(true);
        label->hide();
        return label;
    }

    QToolButton* makeResetButton(QAction& action, QWidget* parent)
    {
        auto* button = new QToolButton(parent);
        button->setObjectName(u"btnReset"_s);
        button->setDefaultAction(&action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setFocusPolicy(Qt::StrongFocus);
        return button;
    }

} // namespace

PropertyHelp::PropertyHelp(QAction& resetAction, QWidget* parent)
    : QGroupBox(parent)
    , iToolTip(makeText(this))
    , iProblem(makeProblem(this))
{
    setObjectName(u"toolTipBox"_s);
    setFlat(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, 0, margin, margin);
    layout->setSpacing(8);
    layout->addWidget(iToolTip);
    layout->addWidget(iProblem);
    layout->addWidget(makeResetButton(resetAction, this), 0, Qt::AlignRight);
    clear();
}

void PropertyHelp::showProperty(const FlashTemplateProperty& property)
{
    setTitle(TemplateText::of(property.title()));
    if (const QString text = TemplateText::of(property.desc()); iToolTip->toPlainText() != text)
        setReadableText(*iToolTip, text);
    const QString problem = propertyProblem(property);
    QPalette palette;
    palette.setColor(QPalette::WindowText, ProblemMark::color());
    iProblem->setPalette(palette);
    iProblem->setText(tr("This value can't be used: %1.").arg(problem));
    iProblem->setVisible(!problem.isEmpty());
}

void PropertyHelp::clear()
{
    setTitle(tr("Help"));
    iToolTip->clear();
    iProblem->hide();
}

} // namespace leafcast
