// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Document.h"

#include "pdf_service/ColourHooks.h"
#include "pdf_service/InputFile.h"
#include "pdf_service/TextString.h"

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {
    constexpr size_t BytesBeforeTrimming = size_t{ 40 } << 20U;
    // Few enough that what they parse stays below what one picture needs, many enough that parsing
    // a shared object again costs nothing that can be measured.
    constexpr int RequestsBeforeForgetting = 200;
} // namespace

Document::Document(const Library& library, const QString& path, const QString& password)
    : iLibrary(library)
{
    checkInputFile(path);
    openFile(path);
    try {
        authenticate(password);
        iPageTree.load(library, iDocument);
        readTitle();
        iPrintColours = std::make_unique<PrintColours>(library, iDocument);
        setPrintColours(iPrintColours.get());
    } catch (...) {
        close();
        throw;
    }
}

Document::~Document()
{
    close();
}

void Document::close()
{
    setPrintColours(nullptr);
    iNamedDestinations.reset();
    if (iDocument->page_map_nesting > 0) // the library forgets a half of it
        pdf_drop_page_tree(context(), iDocument);
    pdf_drop_document(context(), iDocument);
}

void Document::openFile(const QString& path)
{
    const QByteArray name = path.toUtf8();
    iLibrary.guarded(
        ErrorCode::Unreadable, [&] { iDocument = pdf_open_document(context(), name.constData()); });
}

void Document::authenticate(const QString& password) const
{
    const QByteArray text = password.toUtf8();
    bool open = false;
    iLibrary.guarded(ErrorCode::Unreadable, [&] {
        open = pdf_needs_password(context(), iDocument) == 0
            || pdf_authenticate_password(context(), iDocument, text.constData()) != 0;
    });
    if (open)
        return;
    if (password.isEmpty())
        throw ServiceError(ErrorCode::Locked, u"it needs a password"_s);
    throw ServiceError(ErrorCode::Password, u"the password is wrong"_s);
}

void Document::readTitle()
{
    const char* bytes = nullptr;
    size_t length = 0;
    const bool read = iLibrary.attempt([&] {
        pdf_obj* title = pdf_dict_getp(context(), pdf_trailer(context(), iDocument), "Info/Title");
        bytes = pdf_to_string(context(), title, &length);
    });
    if (read && bytes != nullptr)
        iTitle = textFromPDFString(bytes, length).trimmed();
}

const NamedDestinations& Document::namedDestinations() const
{
    if (!iNamedDestinations) {
        iNamedDestinations.emplace();
        iNamedDestinations->load(iLibrary, iDocument);
    }
    return *iNamedDestinations;
}

QString Document::label(int pageIndex) const
{
    if (!iLabels) {
        iLabels.emplace();
        iLabels->load(iLibrary, iDocument);
    }
    return iLabels->labelOf(pageIndex);
}

std::optional<PageGeometry> Document::geometry(int pageIndex) const
{
    std::optional<PageGeometry> result;
    const bool read = iLibrary.attempt([&] {
        pdf_obj* page = pdf_load_object(context(), iDocument, iPageTree.objectOf(pageIndex));
        if (pdf_is_dict(context(), page))
            result = PageGeometry::ofPage(context(), page);
        pdf_drop_obj(context(), page);
    });
    return read ? result : std::nullopt;
}

pdf_obj* Document::pageObject(int pageIndex) const
{
    if (pageIndex < 0 || pageIndex >= pageCount())
        throw ServiceError(ErrorCode::NoPage, u"it has no page %1"_s.arg(pageIndex + 1));
    pdf_obj* page = nullptr;
    iLibrary.guarded(ErrorCode::Page, [&] {
        page = pdf_cache_object(context(), iDocument, iPageTree.objectOf(pageIndex))->obj;
        if (!pdf_is_dict(context(), page))
            fz_throw(context(), FZ_ERROR_GENERIC, "the page is missing from the file");
    });
    return page;
}

void Document::trimMemory()
{
    const bool full = iLibrary.bytesInUse() >= BytesBeforeTrimming;
    if (full)
        iLibrary.emptyCaches();
    if (full || ++iRequestsSinceForgetting >= RequestsBeforeForgetting)
        forgetParsedObjects();
}

void Document::forgetParsedObjects()
{
    (void)iLibrary.attempt([&] { pdf_clear_xref(context(), iDocument); });
    iRequestsSinceForgetting = 0;
}

} // namespace leafcast::service
