// SPDX-License-Identifier: MIT
// Writes small right inputs to start from, below the folder that it is called with: one folder a
// target.
#include "support/PDFBuilder.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>

using namespace leafcast;
using namespace Qt::StringLiterals;

namespace {

QDir root; // NOLINT(cert-err58-cpp)

void add(const QString& target, const QString& name, const QByteArray& content)
{
    root.mkpath(target);
    QFile file(root.filePath(target + u'/' + name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written", qUtf8Printable(file.fileName()));
}

QByteArray pictureAs(const char* format)
{
    QImage image(12, 8, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

QByteArray document()
{
    PDFBuilder builder(2);
    builder.addPage({ .mediaBox = { 0, 0, 120, 80 },
        .rotation = 90,
        .content = "BT /F1 12 Tf 10 10 Td (Leaves) Tj ET 0.1 0.2 0.3 0.4 k 5 5 20 20 re f" });
    builder.addPageLink(0, { 1, 2, 30, 40 }, 2);
    builder.addURLLink(1, { 1, 2, 30, 40 }, "https://www.example.org/");
    builder.setOutline({ { .label = u"One"_s,
        .target = builder.explicitDestination(0),
        .children
        = { { .label = u"Two"_s, .target = "/A << /S /URI /URI (http://a.example) >>" } } } });
    builder.setTitle(u"Leaves"_s);
    builder.setPageLabels("0 << /S /r >> 1 << /S /D /P (A-) >>");
    return builder.build();
}

void addRequests()
{
    const QByteArray host = "Host: 127.0.0.1:8765\r\n\r\n";
    add(u"Request"_s, u"root"_s, "GET / HTTP/1.1\r\n" + host);
    add(u"Request"_s, u"range"_s,
        "GET /files/1.jpg?x HTTP/1.1\r\nRange: bytes=2-9\r\nIf-Range: \"a\"\r\n" + host);
    add(u"Request"_s, u"gzip"_s,
        "HEAD /index.html HTTP/1.1\r\nAccept-Encoding: gzip;q=0.5, *;q=0\r\n"
        "If-Modified-Since: Sun, 06 Nov 1994 08:49:37 GMT\r\n"
            + host);
    add(u"Request"_s, u"outside"_s, "GET /%2e%2e/secret.txt HTTP/1.1\r\n" + host);
    add(u"Request"_s, u"link"_s, "GET /link.txt HTTP/1.1\r\n" + host);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        qFatal("seeds FOLDER");
    root = QDir(QFile::decodeName(argv[1]));
    add(u"PageRange"_s, u"range"_s, "1-3,7, 9");
    add(u"PageRange"_s, u"all"_s, "ALL");
    add(u"Placeholder"_s, u"page"_s, "<title>${index.title}</title> ${meta.keywords} x");
    add(u"Outline"_s, u"outline"_s,
        "<ols><ol><label>One</label><page>1</page><ol><label>Two</label><page>2</page></ol></ol></"
        "ols>");
    add(u"Defaults"_s, u"defaults"_s, R"({"a":1,"b":"c","d":true})");
    add(u"Settings"_s, u"settings"_s, "\n\rtitle=T\n\rpageWidth=1\n\rcolor=0x112233\n\rimage=|||");
    add(u"Template"_s, u"template"_s,
        "<flashTemplate><info><htmlPath>index.html</htmlPath><defaultStyle>S</defaultStyle></info>"
        "<properties><property type=\"pt_composite\"><key>g</key><title>G</title><childProperties>"
        "<property type=\"pt_list\"><key>k</key><title>K</title><value>a</value>"
        "<valueSource>a,b</valueSource></property></childProperties></property></properties></"
        "flashTemplate>");
    for (const char* format : { "png", "jpg" })
        add(u"ImageSize"_s, QString::fromLatin1(format), pictureAs(format));
    add(u"PDF"_s, u"document"_s, document());
    addRequests();
    return 0;
}
