// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/PageText.h"

#include <cmath>

namespace leafcast::service {

namespace {

    using HeldText = Held<fz_stext_page, fz_drop_stext_page>;

    // A page of a broadsheet newspaper has some 40,000.
    constexpr int MostCharacters = 200'000;

    // In points: the text device decides by distances what is a blank and what a new line.
    struct Paper {
        double width;
        double height;
    };

    double rounded(double fraction)
    {
        return std::round(fraction * 1e5) / 1e5; // a hundredth of a pixel
    }

    FractionBox fractions(const fz_rect& rect, const Paper& paper)
    {
        const double left = rounded(rect.x0 / paper.width);
        const double top = rounded(rect.y0 / paper.height);
        return { left, top, rounded(rect.x1 / paper.width - left),
            rounded(rect.y1 / paper.height - top) };
    }

    class LineBuilder {
    public:
        explicit LineBuilder(const Paper& paper)
            : iPaper(paper)
            , iPage{ 0, 0, static_cast<float>(paper.width), static_cast<float>(paper.height) }
        {
        }

        void add(const fz_stext_char& character)
        {
            const auto code = static_cast<char32_t>(character.c);
            if (code < 0x20 || QChar::isSpace(code)) {
                endWord();
                return;
            }
            iWord += QString::fromUcs4(&code, 1);
            iBounds = fz_union_rect(iBounds, fz_rect_from_quad(character.quad));
        }

        void endWord()
        {
            const fz_rect visible = fz_intersect_rect(iBounds, iPage);
            if (!iWord.isEmpty() && !fz_is_empty_rect(visible)) {
                if (!iLine.text.isEmpty())
                    iLine.text += u' ';
                iLine.text += iWord;
                iLine.boxes.push_back(fractions(visible, iPaper));
            }
            iWord.clear();
            iBounds = fz_empty_rect;
        }

        void endLine(std::vector<TextLine>& lines)
        {
            endWord();
            if (!iLine.boxes.empty())
                lines.push_back(std::move(iLine));
            iLine = {};
        }

    private:
        Paper iPaper;
        fz_rect iPage;
        fz_rect iBounds = fz_empty_rect;
        QString iWord;
        TextLine iLine;
    };

    PageText readPage(const fz_stext_page& text, const Paper& paper)
    {
        PageText page;
        LineBuilder builder(paper);
        int left = MostCharacters;
        for (const fz_stext_block* block = text.first_block; block != nullptr;
             block = block->next) {
            if (block->type != FZ_STEXT_BLOCK_TEXT)
                continue;
            for (const fz_stext_line* line = block->u.t.first_line; line != nullptr;
                 line = line->next) {
                const fz_stext_char* c = line->first_char;
                for (; c != nullptr && left > 0; c = c->next, --left)
                    builder.add(*c);
                page.isCut |= c != nullptr;
                builder.endLine(page.lines);
            }
        }
        return page;
    }

} // namespace

PageText textOfPage(const LoadedPage& page)
{
    const Library& library = page.document().mupdf();
    fz_context* context = library.context();
    const Paper paper{ page.geometry().displayedWidth(), page.geometry().displayedHeight() };
    HeldText text(context);
    HeldDevice device(context);
    library.guarded(ErrorCode::Page, [&] {
        text.take(fz_new_stext_page(context, fz_empty_rect));
        device.take(fz_new_stext_device(context, text.get(), nullptr));
        page.runContents(device.get(), paper.width, paper.height);
        page.runAnnotations(device.get(), paper.width, paper.height);
        fz_close_device(context, device.get());
    });
    return readPage(*text.get(), paper);
}

} // namespace leafcast::service
