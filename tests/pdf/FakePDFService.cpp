// SPDX-License-Identifier: MIT
// Speaks the protocol of the PDF service and misbehaves on demand, in ways that the real one can't
// be brought to. The "document" is a JSON object that tells for some pages, from "0", or for
// "open", what happens to a request about it: "crash", "hang", "slow", "refuse", "memory",
// "garbage", "long" (a line without an end).
#include <chrono>
#include <csignal>
#include <iostream>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <string>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

QJsonObject document;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void say(const QByteArray& line)
{
    std::cout.write(line.constData(), line.size());
    std::cout << '\n' << std::flush;
}

void neverEndALine()
{
    const std::string piece(1 << 20, 'x');
    while (std::cout << piece)
        ;
}

void misbehave(const QString& behaviour)
{
    if (behaviour == u"crash"_s)
        std::raise(SIGKILL);
    if (behaviour == u"slow"_s)
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    if (behaviour == u"garbage"_s)
        say("Segmentation fault? No: just chatting.");
    if (behaviour == u"long"_s)
        neverEndALine();
    while (behaviour == u"hang"_s)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

QJsonArray pages(int first, int count)
{
    QJsonArray pages;
    for (int i = first; i < first + count; ++i)
        pages.append(QJsonObject{ { u"label"_s, QString::number(i) } });
    return pages;
}

// In two steps, so that a worker that is killed leaves something half written beside the path.
bool render(const QString& path, int page, const QString& behaviour)
{
    QFile half(path + u".half"_s);
    if (!half.open(QIODevice::WriteOnly))
        return false;
    half.write("picture of page " + QByteArray::number(page));
    half.close();
    misbehave(behaviour);
    return half.rename(path);
}

QJsonObject answerTo(const QJsonObject& request)
{
    const QString operation = request["op"_L1].toString();
    if (operation == u"open"_s)
        document = QJsonDocument::fromJson(contentOf(request["path"_L1].toString())).object();
    const int page = request["page"_L1].toInt(request["first"_L1].toInt());
    const QString key = operation == u"open"_s ? operation : QString::number(page);
    const QString behaviour = document[key].toString();

    if (behaviour == u"memory"_s)
        return { { u"error"_s, behaviour }, { u"message"_s, u"it needs too much"_s } };
    if (behaviour == u"refuse"_s)
        return { { u"error"_s, u"page"_s }, { u"message"_s, u"it is refused"_s } };
    if (operation == u"render"_s) {
        if (!render(request["path"_L1].toString(), page, behaviour))
            return { { u"error"_s, u"write"_s }, { u"message"_s, u"no room"_s } };
        return { { u"width"_s, 10 }, { u"height"_s, 20 }, { u"bytes"_s, 17 },
            { u"scale"_s, request["scale"_L1] } };
    }
    misbehave(behaviour);
    if (operation == u"pages"_s)
        return { { u"pages"_s, pages(page, request["count"_L1].toInt()) } };
    if (operation == u"text"_s)
        return { { u"lines"_s,
            QJsonArray{ QJsonObject{ { u"text"_s, u"text of page %1"_s.arg(page) } } } } };
    return document;
}

} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);) {
        const QJsonObject request
            = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        QJsonObject answer = answerTo(request);
        answer["id"_L1] = request["id"_L1];
        say(QJsonDocument(answer).toJson(QJsonDocument::Compact));
    }
    return 0;
}
