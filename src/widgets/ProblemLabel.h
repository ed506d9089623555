// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLabel>

namespace leafcast {

/// Red that reads well on the palette's window colour, light or dark.
QColor problemColor(const QPalette& palette);

/// A line of a dialog that says how things are going, or in red what is wrong. Screen readers read
/// a problem out when it appears.
class ProblemLabel : public QLabel {
    Q_OBJECT

public:
    explicit ProblemLabel(QWidget* parent = nullptr);

    void showNote(const QString& text);
    /// A clause such as "the PDF a.pdf is empty" is shown as a sentence. Without one nothing is
    /// shown.
    void showProblem(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void say(const QString& text, bool isProblem);
    void takeColor();

    bool iIsProblem = false;
};

/// With a capital, unless it begins with the name of a file, and a full stop.
QString asSentence(QString text);

} // namespace leafcast
