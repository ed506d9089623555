// SPDX-License-Identifier: MIT
#include "cli/Command.h"
#include "cli/Console.h"
#include "cli/OpenedPDF.h"
#include "cli/PageNumbers.h"
#include "cli/PasswordOptions.h"
#include "links/FlashOutlinePDF.h"
#include "links/FlashPagesAnnotationsPDF.h"

#include <algorithm>
#include <cmath>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct InspectOptions {
        std::string file;
        std::string pages = "ALL";
        PasswordOptions passwordOptions;
        bool json = false;
        bool linksXml = false;
        bool outlineXml = false;
    };

    struct LinkCounts {
        int web = 0;
        int pages = 0;
    };

    LinkCounts countLinks(const PDFDocument& document)
    {
        LinkCounts counts;
        for (int i = 0; i < document.pageCount(); ++i)
            for (const PDFAnnotation& annotation : document.annotationsOfPage(i)) {
                const bool isLink = annotation.type == u"Link"_s;
                counts.web += isLink && annotation.URL;
                counts.pages += isLink && !annotation.URL && annotation.destination;
            }
        return counts;
    }

    int countEntries(const PDFOutline& outline)
    {
        int count = 0;
        for (const PDFOutline& child : outline.children)
            count += 1 + countEntries(child);
        return count;
    }

    int outlineEntries(const PDFDocument& document)
    {
        const auto root = document.outlineRoot();
        return root ? countEntries(*root) : 0;
    }

    QJsonObject pageAsJson(const PDFDocument& document, int index)
    {
        QJsonObject object{ { u"number"_s, index + 1 } };
        const auto page = document.pageAtIndex(index);
        object.insert(u"readable"_s, page.has_value());
        if (!page)
            return object;
        object.insert(u"width"_s, page->displayedWidth());
        object.insert(u"height"_s, page->displayedHeight());
        object.insert(u"rotation"_s, page->rotation());
        object.insert(u"label"_s, page->label());
        return object;
    }

    void printJson(const PDFDocument& document)
    {
        QJsonArray pages;
        for (int i = 0; i < document.pageCount(); ++i)
            pages.append(pageAsJson(document, i));
        const LinkCounts links = countLinks(document);
        Console::writeData(QJsonDocument(QJsonObject{
                                             { u"version"_s, 1 },
                                             { u"title"_s, document.title() },
                                             { u"locked"_s, document.isEncrypted() },
                                             { u"damaged"_s, document.isRepaired() },
                                             { u"webLinks"_s, links.web },
                                             { u"pageLinks"_s, links.pages },
                                             { u"outlineEntries"_s, outlineEntries(document) },
                                             { u"pages"_s, pages },
                                         })
                               .toJson());
    }

    QString geometry(const PDFDocument& document, int index)
    {
        const auto page = document.pageAtIndex(index);
        if (!page)
            return u"unreadable"_s;
        const QString size = u"%1 x %2 points"_s.arg(std::round(page->displayedWidth() * 10) / 10)
                                 .arg(std::round(page->displayedHeight() * 10) / 10);
        return page->rotation() == 0 ? size
                                     : u"%1, rotated by %2"_s.arg(size).arg(page->rotation());
    }

    // Pages of one geometry in a row share a line.
    void printGeometries(const PDFDocument& document)
    {
        for (int first = 0, last = 0; first < document.pageCount(); first = last + 1) {
            const QString shared = geometry(document, first);
            last = first;
            while (last + 1 < document.pageCount() && geometry(document, last + 1) == shared)
                ++last;
            const QString range = first == last ? QString::number(first + 1)
                                                : u"%1-%2"_s.arg(first + 1).arg(last + 1);
            Console::writeLine(u"  %1: %2"_s.arg(range, shared));
        }
    }

    void printText(const PDFDocument& document)
    {
        const LinkCounts links = countLinks(document);
        Console::writeLine(u"Title:    %1"_s.arg(
            document.title().isEmpty() ? u"(none)"_s : Console::printable(document.title())));
        Console::writeLine(u"Locked:   %1"_s.arg(document.isEncrypted() ? u"yes"_s : u"no"_s));
        Console::writeLine(u"Damaged:  %1"_s.arg(
            document.isRepaired() ? u"yes, but it could be mended"_s : u"no"_s));
        Console::writeLine(
            u"Links:    %1 to the web, %2 to pages"_s.arg(links.web).arg(links.pages));
        Console::writeLine(u"Outline:  %1 entries"_s.arg(outlineEntries(document)));
        Console::writeLine(u"Pages:    %1"_s.arg(document.pageCount()));
        printGeometries(document);
    }

    void printLinksXml(const std::shared_ptr<PDFDocument>& document, const QString& pages)
    {
        pageNumbers(pages, document->source().path, document->pageCount());
        FlashPagesAnnotationsPDF links;
        links.loadLinksFromPDF(document, pages);
        Console::writeData(links.pagesAnnotationsNode()->toUtf8() + '\n');
    }

    void printOutlineXml(const std::shared_ptr<PDFDocument>& document)
    {
        FlashOutlinePDF outline;
        outline.loadOutlineFromPDF(document.get());
        Console::writeData(outline.outlineAsXMLNode().toUtf8() + '\n');
    }

    ExitCode inspect(const InspectOptions& options)
    {
        const auto document
            = openPDF({ pathFromArgument(options.file), options.passwordOptions.chosen(), {} });
        if (options.linksXml)
            printLinksXml(document, fromArgument(options.pages));
        else if (options.outlineXml)
            printOutlineXml(document);
        else if (options.json)
            printJson(*document);
        else
            printText(*document);
        return ExitCode::Complete;
    }

} // namespace

void addInspectCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command = program.add_subcommand("inspect", "Tell what a PDF holds");
    const auto options = std::make_shared<InspectOptions>();
    command->add_option("FILE", options->file, "The PDF")->required()->type_name("");
    auto* pages
        = command->add_option("--pages", options->pages, "Pages whose links --links-xml prints")
              ->type_name("RANGE")
              ->capture_default_str();
    options->passwordOptions.addTo(*command);
    auto* json = command->add_flag("--json", options->json, "Write JSON");
    auto* links = command->add_flag("--links-xml", options->linksXml, "Write the links as XML");
    command->add_flag("--outline-xml", options->outlineXml, "Write the outline as XML")
        ->excludes(json)
        ->excludes(links);
    links->excludes(json);
    pages->needs(links);
    command->callback([&chosen, options] { chosen = [options] { return inspect(*options); }; });
}

} // namespace leafcast
