// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <vector>

namespace leafcast {

/// Writes small PDF files for tests, with a right cross-reference table. Pages are numbered from 0
/// in the order they are added; boxes are in points, origin bottom-left. Whatever has no method of
/// its own is written as raw PDF syntax through addObject() and the raw members, so odd and wrong
/// files can be made too. Every page can use the font /F1 (Helvetica).
class PDFBuilder {
public:
    struct Box {
        double left = 0;
        double bottom = 0;
        double right = 0;
        double top = 0;
    };

    struct Page {
        Box mediaBox{ 0, 0, 612, 792 };
        std::optional<Box> cropBox{};
        int rotation = 0; // degrees, written as given
        double userUnit = 1;
        QByteArray content{}; // content stream
        QByteArray resources{}; // entries beside /Font, such as "/XObject << /Im 7 0 R >>"
        QByteArray entries{}; // further entries of the page's dictionary
    };

    struct OutlineEntry {
        QString label{};
        QByteArray target{}; // such as explicitDestination(0), or "/A << /S /URI /URI (..) >>"
        std::vector<OutlineEntry> children{};
    };

    PDFBuilder()
        : PDFBuilder(0)
    {
    }
    explicit PDFBuilder(int emptyPages);

    int addPage(const Page& page);
    int addPage() { return addPage(Page{}); } // letter size, empty

    void addURLLink(int page, const Box& rect, const QByteArray& url);
    void addPageLink(int page, const Box& rect, int targetPage);
    /// The inside of an annotation's dictionary, such as "/Subtype /Text /Rect [0 0 9 9]".
    void addAnnotation(int page, const QByteArray& entries);

    void setOutline(const std::vector<OutlineEntry>& entries);
    void setTitle(const QString& title);
    /// The inside of the number tree's array, such as "0 << /S /r >> 4 << /S /D /P (A-) >>".
    void setPageLabels(const QByteArray& numbers);
    void addCatalogueEntries(const QByteArray& entries);

    /// Both give the new object's number; a stream's dictionary is given without /Length.
    int addObject(const QByteArray& body);
    int addStream(const QByteArray& entries, const QByteArray& data);
    void replaceObject(int number, const QByteArray& body);
    int pageObject(int page) const;

    /// "/Dest [page /Fit]", for a link or an outline entry.
    QByteArray explicitDestination(int page) const;

    QByteArray build() const;

    static QByteArray reference(int object); // "5 0 R"
    /// Content that shows one line of Helvetica in black.
    static QByteArray showText(const QByteArray& text, double x, double y, double size = 12);

private:
    QByteArray outlineLevel(const std::vector<OutlineEntry>& entries);

    struct PageObjects {
        int dictionary = 0;
        int annotations = 0;
    };

    std::vector<QByteArray> iObjects; // the body of object n at n - 1
    std::vector<PageObjects> iPages;
    QByteArray iCatalogueEntries;
    QByteArray iTrailerEntries;
};

} // namespace leafcast
