// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/WebAddress.h"

#include "pdf_service/TextString.h"

#include <algorithm>
#include <QStringDecoder>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace leafcast::service {

namespace {

    QString decoded(const char* bytes, size_t length)
    {
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(QByteArrayView(bytes, static_cast<qsizetype>(length)));
        return (decoder.hasError() ? textFromPDFString(bytes, length) : text).trimmed();
    }

    bool isSchemeCharacter(QChar character)
    {
        return character.unicode() < 128
            && (character.isLetterOrNumber() || u"+-."_s.contains(character));
    }

} // namespace

QString schemeOf(const QString& address)
{
    const QString scheme = address.left(std::max<qsizetype>(address.indexOf(u':'), 0));
    const bool valid = !scheme.isEmpty() && scheme.front().isLetter()
        && std::all_of(scheme.begin(), scheme.end(), isSchemeCharacter);
    return valid ? scheme.toLower() : QString();
}

QString webAddress(const char* bytes, size_t length, const QString& base)
{
    QString address = decoded(bytes, length);
    if (!schemeOf(address).isEmpty())
        return address;
    if (!base.isEmpty())
        return QUrl(base).resolved(QUrl(address)).toString(QUrl::FullyEncoded);
    if (address.startsWith("www."_L1, Qt::CaseInsensitive))
        return "http://"_L1 + address;
    return address;
}

} // namespace leafcast::service
