#include "resources/WidgetFit.h"

#include "platform/qt/ButtonControl.h"
#include "platform/qt/StaticControl.h"

#include <QtWidgets>

#include <typeinfo>

namespace restest
{

namespace
{

// What one control shows, and the pixels that it has for it and needs for it.
struct Shown {
    QString text;
    QSize room;
    QSize needed;
};

Shown ofButton(const QPushButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    QSize needed = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    if (typeid(button) != typeid(QPushButton)) { // a dialog template's makes its caption fit
        const auto caption = orvplatform::fittedCaption(button);
        needed = QFontMetrics(caption.font).size(Qt::TextShowMnemonic, caption.text);
    }
    if (!button.icon().isNull() && !button.text().isEmpty()) {
        needed.rwidth() += button.iconSize().width() + 4;
    }
    return {button.text(), button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).size(),
            needed};
}

Shown ofLabel(const QLabel& label)
{
    QTextDocument document;
    document.setDefaultFont(orvplatform::fittedFont(label));
    document.setDocumentMargin(0);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    document.setDefaultTextOption(option);
    if (label.textFormat() == Qt::RichText) {
        document.setHtml(label.text());
    } else {
        // The mark of a letter that leads to another control isn't drawn.
        document.setPlainText(label.buddy() != nullptr ? QString(label.text()).remove('&') : label.text());
    }
    document.setTextWidth(label.contentsRect().width());
    // The ideal width tells of words that are wider than the label. Heights of lines are fractions of pixels here, and
    // whole ones where the label draws.
    return {document.toPlainText(), label.contentsRect().size(),
            QSize(qCeil(document.idealWidth()), qFloor(document.size().height()))};
}

Shown ofEdit(const QLineEdit& edit)
{
    const QString text = edit.text().isEmpty() ? edit.placeholderText() : edit.text();
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    const QRect room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    constexpr int inner = 2; // on both sides, between frame and text
    return {text,
            room.size() - QSize(2 * inner, 0),
            {edit.fontMetrics().horizontalAdvance(text), edit.fontMetrics().height()}};
}

Shown ofGroupBox(const QGroupBox& box)
{
    constexpr int corners = 16; // of the frame, left and right of the title
    return {box.title(),
            box.size() - QSize(corners, 0),
            {box.fontMetrics().horizontalAdvance(box.title()), box.fontMetrics().height()}};
}

Shown ofCheckBox(const QCheckBox& box)
{
    QStyleOptionButton option;
    option.initFrom(&box);
    return {box.text(), box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box).size(),
            box.fontMetrics().size(Qt::TextShowMnemonic, box.text())};
}

Shown ofComboBox(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return {box.currentText(),
            box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).size(),
            {box.fontMetrics().horizontalAdvance(box.currentText()), box.fontMetrics().height()}};
}

Shown shownBy(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        return ofCheckBox(*box);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return ofComboBox(*box);
    }
    if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
        return ofButton(*button);
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text().isEmpty() ? Shown() : ofLabel(*label);
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        return ofEdit(*edit);
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return ofGroupBox(*box);
    }
    return {};
}

std::string describe(const QWidget& widget)
{
    const Shown shown = shownBy(widget);
    const QString name = shown.text.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : shown.text;
    return ("\"" + name + "\"").toStdString();
}

std::string describe(QSize size)
{
    return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

// A frame around others, or a control as any other.
bool isFrame(const QWidget& widget)
{
    return qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

// The controls of a window: those that stand for something of their own, not the parts that controls are made of.
std::vector<const QWidget*> controlsOf(const QWidget& window)
{
    std::vector<const QWidget*> found;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLabel*>(widget) ||
                               qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
                               qobject_cast<const QComboBox*>(widget) || isFrame(*widget);
        const auto* edit = qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
        if (isControl && edit == nullptr && widget->isVisibleTo(&window)) {
            found.push_back(widget);
        }
    }
    return found;
}

// Where a control shows something: all of it, or a label's text.
QRect inkOf(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const Shown shown = shownBy(widget);
    if (label == nullptr || shown.text.isEmpty()) {
        return widget.geometry();
    }
    return {widget.geometry().topLeft(), shown.needed};
}

} // namespace

std::vector<std::string> misfits(const QWidget& window)
{
    std::vector<std::string> sentences;
    const std::vector<const QWidget*> controls = controlsOf(window);
    for (const QWidget* widget : controls) {
        const Shown shown = shownBy(*widget);
        if (!shown.text.isEmpty() &&
            (shown.needed.width() > shown.room.width() || shown.needed.height() > shown.room.height())) {
            sentences.push_back(describe(*widget) + " needs " + describe(shown.needed) + " pixels and has " +
                                describe(shown.room) + ".");
        }
        if (!widget->parentWidget()->rect().contains(inkOf(*widget))) {
            sentences.push_back(describe(*widget) + " reaches out of its window.");
        }
        for (const QWidget* other : controls) {
            if (other <= widget || other->parentWidget() != widget->parentWidget() || isFrame(*widget) ||
                isFrame(*other)) {
                continue;
            }
            if (inkOf(*widget).intersects(inkOf(*other))) {
                sentences.push_back(describe(*widget) + " and " + describe(*other) + " lie on each other.");
            }
        }
    }
    return sentences;
}

int textCount(const QWidget& window)
{
    int count = 0;
    for (const QWidget* widget : controlsOf(window)) {
        count += !shownBy(*widget).text.isEmpty();
    }
    return count;
}

} // namespace restest
