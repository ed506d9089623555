// SPDX-License-Identifier: MIT
#include "app/CalmStyle.h"

#include "app/CalmPainting.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int scrollBarThickness = 12;
    constexpr int shortestHandle = 32;
    constexpr int indicatorSize = 16;
    constexpr int textInset = 5;
    constexpr int sectionMargin = 12;
    constexpr int sectionGap = 6;
    constexpr int roomAboveAndBelow = 14; // together, around the text of fields and buttons

    /// Antialiasing, and the painter as it was in the end.
    class Brush {
    public:
        explicit Brush(QPainter& painter)
            : iPainter(painter)
        {
            iPainter.save();
            iPainter.setRenderHint(QPainter::Antialiasing);
        }
        ~Brush() { iPainter.restore(); }
        Brush(const Brush&) = delete;
        Brush& operator=(const Brush&) = delete;

    private:
        QPainter& iPainter;
    };

    bool isFramedField(const QStyleOption* option, const QWidget* widget)
    {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        return frame && frame->lineWidth > 0 && widget && !widget->inherits("QAbstractSpinBox")
            && !(widget->parentWidget() && widget->parentWidget()->inherits("QAbstractSpinBox"));
    }

    /// A flat group box: its title is a heading below a line, and there is no frame.
    bool isSection(const QStyleOptionGroupBox* group)
    {
        return group && group->features.testFlag(QStyleOptionFrame::Flat)
            && !group->subControls.testFlag(QStyle::SC_GroupBoxCheckBox);
    }

    QRect sectionTitleRect(const QStyleOptionGroupBox& group)
    {
        return QRect(group.rect.left() + sectionMargin, group.rect.top() + sectionMargin,
            group.rect.width() - 2 * sectionMargin, group.fontMetrics.height());
    }

    /// Of the view that a scroll bar belongs to.
    QPalette::ColorRole surfaceBehind(const QWidget* scrollBar)
    {
        for (; scrollBar; scrollBar = scrollBar->parentWidget())
            if (const auto* area = qobject_cast<const QAbstractScrollArea*>(scrollBar))
                return area->viewport()->backgroundRole();
        return QPalette::Window;
    }

    Qt::ArrowType directionOf(QStyle::PrimitiveElement arrow)
    {
        switch (arrow) {
        case QStyle::PE_IndicatorArrowUp:
            return Qt::UpArrow;
        case QStyle::PE_IndicatorArrowLeft:
            return Qt::LeftArrow;
        case QStyle::PE_IndicatorArrowRight:
            return Qt::RightArrow;
        default:
            return Qt::DownArrow;
        }
    }

    QRect scrollBarHandle(const QStyleOptionSlider& option)
    {
        const bool isUpright = option.orientation == Qt::Vertical;
        const int length = isUpright ? option.rect.height() : option.rect.width();
        const int range = option.maximum - option.minimum;
        const int whole = range + option.pageStep;
        const int handle = range <= 0
            ? length
            : std::min(length,
                std::max(
                    shortestHandle, int(qint64(length) * option.pageStep / std::max(whole, 1))));
        const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum,
            option.sliderPosition, length - handle, option.upsideDown);
        return isUpright
            ? QRect(option.rect.left(), option.rect.top() + start, option.rect.width(), handle)
            : QRect(option.rect.left() + start, option.rect.top(), handle, option.rect.height());
    }

    /// There are no arrow buttons: the whole length is groove.
    QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part)
    {
        const QRect handle = scrollBarHandle(option);
        const bool isUpright = option.orientation == Qt::Vertical;
        QRect rect = option.rect;
        switch (part) {
        case QStyle::SC_ScrollBarGroove:
            return rect;
        case QStyle::SC_ScrollBarSlider:
            return handle;
        case QStyle::SC_ScrollBarSubPage:
            isUpright ? rect.setBottom(handle.top() - 1) : rect.setRight(handle.left() - 1);
            return rect;
        case QStyle::SC_ScrollBarAddPage:
            isUpright ? rect.setTop(handle.bottom() + 1) : rect.setLeft(handle.right() + 1);
            return rect;
        default:
            return {};
        }
    }

} // namespace

CalmStyle::CalmStyle()
    : QProxyStyle(u"fusion"_s)
{
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
    QPainter* painter, const QWidget* widget) const
{
    const Brush brush(*painter);
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return CalmPainting::button(*painter, *button);
        break;
    case PE_FrameDefaultButton:
        return;
    case PE_PanelButtonTool:
        return CalmPainting::toolButton(*painter, *option);
    case PE_PanelLineEdit:
        if (isFramedField(option, widget))
            return CalmPainting::field(*painter, *option);
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return CalmPainting::checkBox(*painter, *option);
    case PE_IndicatorRadioButton:
        return CalmPainting::radioButton(*painter, *option);
    case PE_PanelItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            return drawItemPanel(*item, *painter, widget);
        break;
    case PE_IndicatorBranch:
        return CalmPainting::branch(*painter, *option);
    case PE_IndicatorArrowDown:
    case PE_IndicatorArrowUp:
    case PE_IndicatorArrowLeft:
    case PE_IndicatorArrowRight:
        return CalmPainting::chevron(*painter, option->rect, directionOf(element),
            option->palette.color(QPalette::WindowText));
    case PE_FrameFocusRect:
        if (qobject_cast<const QPushButton*>(widget))
            return; // the button has it in its frame
        return CalmPainting::focusRing(*painter, *option);
    case PE_FrameStatusBarItem:
        return;
    default:
        break;
    }
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const
{
    const Brush brush(*painter);
    switch (element) {
    case CE_ProgressBarGroove:
        return CalmPainting::progressGroove(*painter, *option);
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            return drawProgress(*bar, *painter, widget);
        break;
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return drawButtonLabel(*button, *painter, widget);
        break;
    case CE_ToolBar:
        return CalmPainting::toolBar(*painter, *option);
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return drawMenuBarItem(*item, *painter);
        break;
    case CE_MenuBarEmptyArea:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    case CE_Splitter:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Mid));
    default:
        break;
    }
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CalmStyle::drawProgress(
    const QStyleOptionProgressBar& option, QPainter& painter, const QWidget* widget) const
{
    if (option.maximum > option.minimum)
        return CalmPainting::progress(painter, option);
    // Fusion's own moves; it is seen through the slim bar.
    const QRectF bar = CalmPainting::progressBar(option.rect);
    QPainterPath shape;
    shape.addRoundedRect(bar, bar.height() / 2, bar.height() / 2);
    painter.setClipPath(shape);
    QProxyStyle::drawControl(CE_ProgressBarContents, &option, &painter, widget);
}

void CalmStyle::drawItemPanel(
    const QStyleOptionViewItem& option, QPainter& painter, const QWidget* widget) const
{
    if (option.state.testFlag(State_Selected)) {
        CalmPainting::selection(painter, option);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawPrimitive(PE_PanelItemViewItem, &option, &painter, widget);
}

void CalmStyle::drawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter) const
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    QStyleOption touch = option;
    touch.state.setFlag(State_MouseOver, option.state.testFlag(State_Selected));
    CalmPainting::toolButton(painter, touch);
    const int alignment = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
    drawItemText(&painter, option.rect, alignment, option.palette,
        option.state.testFlag(State_Enabled), option.text, QPalette::WindowText);
}

void CalmStyle::drawButtonLabel(
    const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) const
{
    QStyleOptionButton label = option;
    if (option.features.testFlag(QStyleOptionButton::DefaultButton)
        && option.state.testFlag(State_Enabled))
        label.palette.setColor(
            QPalette::ButtonText, option.palette.color(QPalette::HighlightedText));
    QProxyStyle::drawControl(CE_PushButtonLabel, &label, &painter, widget);
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
    QPainter* painter, const QWidget* widget) const
{
    const Brush brush(*painter);
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_ScrollBar && slider)
        return CalmPainting::scrollBar(
            *painter, *slider, scrollBarHandle(*slider), surfaceBehind(widget));
    if (control == CC_GroupBox && isSection(group))
        return CalmPainting::sectionTitle(*painter, *group, sectionTitleRect(*group));
    if (control == CC_ComboBox && box && !box->editable)
        return CalmPainting::comboBox(
            *painter, *box, subControlRect(CC_ComboBox, box, SC_ComboBoxArrow, widget));
    painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect CalmStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
    SubControl part, const QWidget* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider)
        return visualRect(slider->direction, slider->rect, scrollBarPart(*slider, part));
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return QProxyStyle::subControlRect(control, option, part, widget)
            .adjusted(textInset - 2, 0, 0, 0);
    if (control == CC_GroupBox && isSection(group) && part == SC_GroupBoxLabel)
        return sectionTitleRect(*group);
    if (control == CC_GroupBox && isSection(group) && part == SC_GroupBoxContents)
        return group->rect.adjusted(0, sectionTitleRect(*group).bottom() + sectionGap, 0, 0);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect CalmStyle::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const bool isField = element == SE_LineEditContents && isFramedField(option, widget);
    return isField ? rect.adjusted(textInset, 0, -textInset, 0) : rect;
}

QSize CalmStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int height = option ? option->fontMetrics.height() + roomAboveAndBelow : 0;
    switch (type) {
    case CT_LineEdit:
    case CT_ComboBox:
        return usual.expandedTo({ 0, height });
    case CT_PushButton:
        return QSize(usual.width() + textInset, usual.height()).expandedTo({ 0, height });
    default:
        return usual;
    }
}

int CalmStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollBarThickness;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorSize;
    case PM_SplitterWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
    QStyleHintReturn* answer) const
{
    switch (hint) {
    // Pictures on buttons say nothing that their words do not.
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ItemView_ShowDecorationSelected:
        return 0;
    // What goes on stands last, in every dialog.
    case SH_DialogButtonLayout:
        return QDialogButtonBox::GnomeLayout;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

QIcon CalmStyle::standardIcon(
    StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxInformation:
    case SP_MessageBoxQuestion:
        return QIcon(u":/icons/info.svg"_s);
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return QIcon(u":/icons/warning.svg"_s);
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

} // namespace leafcast
