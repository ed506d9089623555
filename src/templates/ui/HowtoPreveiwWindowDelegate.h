// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace leafcast {

class QRCodeView;

/// The sheet that tells how to see the preview on a tablet: by the address of the preview server,
/// as text and as a code for the tablet's camera.
class HowtoPreveiwWindowDelegate : public QDialog {
    Q_OBJECT

public:
    explicit HowtoPreveiwWindowDelegate(QWidget* parent = nullptr);

    /// Those that other devices reach come first. None: the server is about to start.
    void showAddresses(const QStringList& addresses);
    /// The server does not run; the reason is a clause.
    void showFailure(const QString& reason);
    void OnOK() { accept(); }

private:
    QWidget* makeWay();
    void chooseAddress(int index);
    QString address() const;
    void copyAddress();

    QStackedWidget* iPages;
    QLabel* iNotice;
    QComboBox* iAddresses = nullptr;
    QRCodeView* iCode = nullptr;
    QLabel* iLblwebsite = nullptr;
    QLabel* iReach = nullptr;
    QPushButton* iBtnCopy = nullptr;
    QPushButton* iBtnOK = nullptr;
};

} // namespace leafcast
