// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/Target.h"

#include "pdf_service/Document.h"
#include "pdf_service/TextString.h"
#include "pdf_service/WebAddress.h"

namespace leafcast::service {

namespace {

    // A name can stand for a dictionary whose entry is another name; nobody needs more.
    constexpr int MostHops = 8;

    bool isWebAddress(const QString& text)
    {
        return schemeOf(text).size() > 1; // one letter is a drive
    }

} // namespace

TargetReader::TargetReader(const Document& document)
    : iDocument(document)
    , iContext(document.context())
{
    const char* bytes = nullptr;
    size_t length = 0;
    const bool read = document.mupdf().attempt([&] {
        pdf_obj* base
            = pdf_dict_getp(iContext, pdf_trailer(iContext, document.pdf()), "Root/URI/Base");
        bytes = pdf_to_string(iContext, base, &length);
    });
    if (read)
        iBaseURL = textFromPDFString(bytes, length);
}

void TargetReader::read(pdf_obj* object, int currentPage, Target& target) const
{
    pdf_obj* destination = pdf_dict_get(iContext, object, PDF_NAME(Dest));
    pdf_obj* action = pdf_dict_get(iContext, object, PDF_NAME(A));
    if (pdf_is_dict(iContext, action))
        readAction(action, currentPage, target);
    else if (destination != nullptr)
        target.page = pageOfDestination(destination);
}

void TargetReader::readAction(pdf_obj* action, int currentPage, Target& target) const
{
    pdf_obj* kind = pdf_dict_get(iContext, action, PDF_NAME(S));
    if (pdf_name_eq(iContext, kind, PDF_NAME(GoTo)))
        target.page = pageOfDestination(pdf_dict_get(iContext, action, PDF_NAME(D)));
    else if (pdf_name_eq(iContext, kind, PDF_NAME(URI)))
        readAddress(pdf_dict_get(iContext, action, PDF_NAME(URI)), target);
    else if (pdf_name_eq(iContext, kind, PDF_NAME(Named)))
        readNamedAction(pdf_dict_get(iContext, action, PDF_NAME(N)), currentPage, target);
    else if (pdf_name_eq(iContext, kind, PDF_NAME(Launch)))
        readFile(pdf_dict_get(iContext, action, PDF_NAME(F)), target);
    else if (pdf_name_eq(iContext, kind, PDF_NAME(GoToR))) {
        readFile(pdf_dict_get(iContext, action, PDF_NAME(F)), target);
        if (!target.url) // its page is one of another document
            target.page = -1;
    }
}

void TargetReader::readAddress(pdf_obj* address, Target& target) const
{
    size_t length = 0;
    const char* bytes = pdf_to_string(iContext, address, &length);
    if (length > 0)
        target.url = webAddress(bytes, length, iBaseURL);
}

void TargetReader::readFile(pdf_obj* file, Target& target) const
{
    pdf_obj* name = file;
    if (pdf_is_dict(iContext, file))
        name = pdf_dict_geta(iContext, file, PDF_NAME(UF), PDF_NAME(F));
    size_t length = 0;
    const char* bytes = pdf_to_string(iContext, name, &length);
    const QString text = textFromPDFString(bytes, length);
    if (isWebAddress(text))
        target.url = text;
}

void TargetReader::readNamedAction(pdf_obj* name, int currentPage, Target& target) const
{
    const char* text = pdf_to_name(iContext, name);
    const int last = iDocument.pageCount() - 1;
    if (strcmp(text, "FirstPage") == 0)
        target.page = last < 0 ? -1 : 0;
    else if (strcmp(text, "LastPage") == 0)
        target.page = last;
    else if (strcmp(text, "NextPage") == 0 && currentPage >= 0)
        target.page = currentPage < last ? currentPage + 1 : -1;
    else if (strcmp(text, "PrevPage") == 0 && currentPage >= 0)
        target.page = currentPage - 1;
}

int TargetReader::pageOfDestination(pdf_obj* destination) const
{
    for (int hop = 0; hop < MostHops; ++hop) {
        if (pdf_is_array(iContext, destination))
            return pageOfElement(pdf_array_get(iContext, destination, 0));
        if (pdf_is_dict(iContext, destination))
            destination = pdf_dict_get(iContext, destination, PDF_NAME(D));
        else if (pdf_is_name(iContext, destination) || pdf_is_string(iContext, destination))
            destination = namedDestination(destination);
        else
            return -1;
    }
    return -1;
}

pdf_obj* TargetReader::namedDestination(pdf_obj* name) const
{
    size_t length = 0;
    const char* bytes = nullptr;
    if (pdf_is_name(iContext, name)) {
        bytes = pdf_to_name(iContext, name);
        length = strlen(bytes);
    } else {
        bytes = pdf_to_string(iContext, name, &length);
    }
    return iDocument.namedDestinations().find(
        QByteArray::fromRawData(bytes, static_cast<qsizetype>(length)));
}

// A number instead of a page object belongs to remote destinations; some writers put it here.
int TargetReader::pageOfElement(pdf_obj* element) const
{
    if (pdf_is_int(iContext, element)) {
        const int index = pdf_to_int(iContext, element);
        return index >= 0 && index < iDocument.pageCount() ? index : -1;
    }
    return iDocument.pageTree().indexOf(pdf_to_num(iContext, element));
}

} // namespace leafcast::service
