// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace leafcast {

/// A text field that can show a long path with its middle left out while nobody edits it, and a red
/// frame while its text is wrong.
class SheetField : public QLineEdit {
    Q_OBJECT

public:
    enum class Elide { No, Middle };

    explicit SheetField(Elide elide = Elide::No, QWidget* parent = nullptr);

    bool isWrong() const { return iIsWrong; }
    void setWrong(bool isWrong);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect textArea() const;
    void paintElided();
    void paintFrame();

    Elide iElide;
    bool iIsWrong = false;
};

} // namespace leafcast
