// SPDX-License-Identifier: MIT
#include "publish/TextTemplate.h"

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QStringView withoutTrailingSpace(QStringView text)
    {
        while (!text.isEmpty() && text.back().isSpace())
            text.chop(1);
        return text;
    }

    class Scanner {
    public:
        explicit Scanner(QStringView text)
            : iRest(text)
        {
        }

        bool isAtEnd()
        {
            skipWhiteSpace();
            return iRest.isEmpty();
        }

        /// What stands before the mark, or everything when it does not occur; may be empty. Blanks
        /// at the end of the text are dropped.
        QStringView scanTextUpTo(QStringView mark)
        {
            const QStringView text = scanUpTo(mark);
            return iRest.isEmpty() ? withoutTrailingSpace(text) : text;
        }

        /// The same with blanks at the end.
        QStringView scanUpTo(QStringView mark)
        {
            skipWhiteSpace();
            const qsizetype at = iRest.indexOf(mark);
            return take(at < 0 ? iRest.size() : at);
        }

        void scan(QStringView mark)
        {
            skipWhiteSpace();
            if (iRest.startsWith(mark))
                take(mark.size());
        }

    private:
        void skipWhiteSpace()
        {
            while (!iRest.isEmpty() && iRest.front().isSpace())
                take(1);
        }

        QStringView take(qsizetype count)
        {
            const QStringView taken = iRest.first(count);
            iRest = iRest.sliced(count);
            return taken;
        }

        QStringView iRest;
    };

} // namespace

QString TextTemplate::parse() const
{
    QString result;
    Scanner scanner(fromStr);
    while (!scanner.isAtEnd()) {
        const QStringView text = scanner.scanTextUpTo(u"${");
        if (text.isEmpty())
            return result.append(scanner.scanTextUpTo(u"___${__"));
        scanner.scan(u"${");
        const QString key = scanner.scanUpTo(u"}").toString();
        scanner.scan(u"}");
        result.append(text).append(keyAndValues.value(key));
    }
    return result;
}

} // namespace leafcast
