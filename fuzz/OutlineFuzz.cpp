// SPDX-License-Identifier: MIT
#include "base/NamedException.h"
#include "base/XMLParser.h"
#include "FuzzTarget.h"
#include "links/FlashOutline.h"

using namespace leafcast;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text = fuzz::bytesOf(data, size);
    for (const auto mode : { XMLParser::Mode::Strict, XMLParser::Mode::Tidying }) {
        const std::optional<XMLElement> root = XMLParser().parse(text, mode);
        if (!root)
            continue;
        FlashOutline outline;
        try {
            outline.loadFromXMLNode(*root);
        } catch (const NamedException&) {
            continue;
        }
        const XMLElement written = outline.outlineAsXMLNode();
        FlashOutline again;
        again.loadFromXMLNode(written);
        fuzz::require(again.items().size() == outline.items().size(),
            "what is written has as many entries as was read");
    }
    return 0;
}
