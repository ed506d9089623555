// SPDX-License-Identifier: MIT
#include "templates/ui/HowtoPreveiwWindowDelegate.h"

#include "templates/ui/QRCodeView.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHostAddress>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 16;
    constexpr int spacing = 8;

    bool isOfThisMachineOnly(const QString& address)
    {
        const QHostAddress host(QUrl(address).host());
        return host.isNull() ? QUrl(address).host() == u"localhost" : host.isLoopback();
    }

    QLabel* paragraph(const QString& text)
    {
        auto* label = new QLabel(text);
        label->setWordWrap(true);
        return label;
    }

} // namespace

HowtoPreveiwWindowDelegate::HowtoPreveiwWindowDelegate(QWidget* parent)
    : QDialog(parent)
    , iPages(new QStackedWidget)
    , iNotice(paragraph(QString()))
{
    setWindowTitle(tr("Show on a Tablet"));
    setWindowModality(Qt::WindowModal);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    iNotice->setObjectName(u"notice"_s);
    iNotice->setAlignment(Qt::AlignCenter);
    iPages->addWidget(iNotice);
    iPages->addWidget(makeWay());
    column->addWidget(iPages);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    iBtnOK = buttons->button(QDialogButtonBox::Ok);
    iBtnOK->setObjectName(u"btnOK"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &HowtoPreveiwWindowDelegate::OnOK);
    column->addSpacing(spacing);
    column->addWidget(buttons);
    setMinimumWidth(420);
    showAddresses({});
}

QWidget* HowtoPreveiwWindowDelegate::makeWay()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(paragraph(tr("1. Connect the tablet to the network of this computer.")));
    column->addWidget(paragraph(tr("2. Point its camera at the code, or open the address.")));
    column->addWidget(paragraph(tr("3. After each change that you apply, load the page anew.")));
    iCode = new QRCodeView;
    iCode->setObjectName(u"code"_s);
    iCode->setMinimumSize(iCode->sizeHint());
    column->addWidget(iCode, 1);
    iAddresses = new QComboBox;
    iAddresses->setObjectName(u"addresses"_s);
    iAddresses->setAccessibleName(tr("Network address"));
    connect(iAddresses, &QComboBox::currentIndexChanged, this,
        &HowtoPreveiwWindowDelegate::chooseAddress);
    column->addWidget(iAddresses);
    auto* row = new QHBoxLayout;
    iLblwebsite = new QLabel;
    iLblwebsite->setObjectName(u"lblwebsite"_s);
    iLblwebsite->setTextInteractionFlags(Qt::TextBrowserInteraction);
    iLblwebsite->setOpenExternalLinks(true);
    row->addWidget(iLblwebsite, 1);
    iBtnCopy = new QPushButton(QIcon(u":/icons/copy.svg"_s), tr("&Copy"));
    iBtnCopy->setObjectName(u"btnCopy"_s);
    connect(iBtnCopy, &QPushButton::clicked, this, &HowtoPreveiwWindowDelegate::copyAddress);
    row->addWidget(iBtnCopy);
    column->addLayout(row);
    iReach = paragraph(tr("This computer only: it is in no network."));
    iReach->setObjectName(u"reach"_s);
    column->addWidget(iReach);
    return page;
}

void HowtoPreveiwWindowDelegate::showAddresses(const QStringList& addresses)
{
    if (addresses.isEmpty()) {
        iNotice->setText(tr("The preview server is starting …"));
        iPages->setCurrentIndex(0);
        return;
    }
    iAddresses->clear();
    iAddresses->addItems(addresses);
    iAddresses->setVisible(addresses.size() > 1);
    iPages->setCurrentIndex(1);
}

void HowtoPreveiwWindowDelegate::showFailure(const QString& reason)
{
    iNotice->setText(tr("The preview server does not run: %1.").arg(reason));
    iPages->setCurrentIndex(0);
}

void HowtoPreveiwWindowDelegate::chooseAddress(int index)
{
    if (index < 0)
        return;
    iCode->setText(address());
    iLblwebsite->setText(u"<a href=\"%1\">%1</a>"_s.arg(address().toHtmlEscaped()));
    iReach->setVisible(isOfThisMachineOnly(address()));
    iBtnCopy->setText(tr("&Copy"));
}

QString HowtoPreveiwWindowDelegate::address() const
{
    return iAddresses->currentText();
}

void HowtoPreveiwWindowDelegate::copyAddress()
{
    QGuiApplication::clipboard()->setText(address());
    iBtnCopy->setText(tr("Copied"));
}

} // namespace leafcast
