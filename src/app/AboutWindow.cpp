// SPDX-License-Identifier: MIT
#include "app/AboutWindow.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    constexpr int margin = 16;
    constexpr int spacing = 8;
    constexpr int picturePixels = 96;

    struct Component {
        QString name;
        QString licence;
    };

    std::vector<Component> components()
    {
        return { { u"Leafcast"_s, u"MIT"_s }, { u"leafcast-pdf"_s, u"AGPL-3.0-or-later"_s },
            { u"Qt"_s, u"LGPL-3.0"_s },
            { u"Qt WebEngine, Chromium"_s, u"LGPL-3.0, BSD-3-Clause"_s },
            { u"MuPDF"_s, u"AGPL-3.0-or-later"_s }, { u"libjpeg-turbo"_s, u"IJG, BSD-3-Clause"_s },
            { u"Little CMS"_s, u"MIT"_s }, { u"libxml2"_s, u"MIT"_s },
            { u"libarchive"_s, u"BSD-2-Clause"_s }, { u"log4cplus"_s, u"Apache-2.0"_s },
            { u"Boost"_s, u"BSL-1.0"_s }, { u"qrcodegen"_s, u"MIT"_s } };
    }

    QString licenceTable()
    {
        QString rows;
        for (const Component& component : components())
            rows += u"<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>"_s.arg(
                component.name, component.licence);
        return u"<table>%1</table>"_s.arg(rows);
    }

} // namespace

AboutWindow::AboutWindow(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About Leafcast"));
    setWindowModality(Qt::WindowModal);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(u":/icons/leafcast.svg"_s).pixmap(picturePixels, picturePixels));
    picture->setAlignment(Qt::AlignCenter);
    column->addWidget(picture);
    auto* name
        = new QLabel(tr("<h2>Leafcast %1</h2><p>Turns a PDF into a page-turning digital book.</p>")
                         .arg(QCoreApplication::applicationVersion()));
    name->setAlignment(Qt::AlignCenter);
    column->addWidget(name);
    auto* licences = new QTextBrowser;
    licences->setObjectName(u"licences"_s);
    licences->setAccessibleName(tr("What Leafcast is made with, and its licences"));
    licences->setHtml(licenceTable());
    column->addWidget(licences);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    resize(400, 480);
}

} // namespace leafcast
