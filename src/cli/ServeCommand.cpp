// SPDX-License-Identifier: MIT
#include "base/FileReason.h"
#include "base/SystemError.h"
#include "cli/Command.h"
#include "publish/BookCheck.h"
#include "publish/FlashBookOutput.h"

#include <QFileInfo>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    struct ServeOptions {
        std::string book;
        int port = 0; // 0: the server's choice
        std::string bind;
        bool localOnly = false;
        bool open = false;
        bool quiet = false;

        void addTo(CLI::App& command);
        std::vector<std::string> serverArguments() const;
    };

    void ServeOptions::addTo(CLI::App& command)
    {
        command.add_option("BOOK_FOLDER", book, "A book, or a package NAME.app")
            ->required()
            ->type_name("");
        command.add_option("--port", port, "Listen on this port [8765, or the next free one]")
            ->check(CLI::Range(1, 65535).description(""))
            ->type_name("PORT");
        command.add_option("--bind", bind, "Listen on this IP address only")->type_name("ADDRESS");
        command.add_flag("--local-only", localOnly, "Listen for browsers on this machine only");
        command.add_flag("--open", open, "Open the book in the browser of this machine");
        command.add_flag("-q,--quiet", quiet, "Print the line for programs alone");
    }

    std::vector<std::string> ServeOptions::serverArguments() const
    {
        std::vector<std::string> arguments;
        if (port != 0)
            arguments.push_back("--port=" + std::to_string(port));
        if (!bind.empty())
            arguments.push_back("--bind=" + fromArgument(bind).toStdString());
        if (localOnly)
            arguments.emplace_back("--local-only");
        if (open)
            arguments.emplace_back("--open");
        if (quiet)
            arguments.emplace_back("--quiet");
        return arguments;
    }

    [[noreturn]] void refuse(const QString& sentence)
    {
        throw CommandFailure(ExitCode::InputUnreadable, sentence);
    }

    QString folderToServe(const QString& path)
    {
        QString book = QFileInfo(path).canonicalFilePath();
        if (isBookPackage(book))
            return book + u"/Contents/Resources"_s;
        if (isBookFolder(book))
            return book;
        if (QFileInfo(book).isDir())
            refuse(u"%1 is no book that leafcast published"_s.arg(path));
        refuse(u"%1 can't be served: %2"_s.arg(path, whyUnreadable(path, u"it is no folder"_s)));
    }

    // Always the installed one: a stranger's book may hold a program of its own in that place.
    QByteArray serverProgram()
    {
        const QString program = FlashBookOutput::GetServerPath();
        if (program.isEmpty())
            refuse(u"the preview server iPadPreview is missing; install Leafcast again"_s);
        return QFile::encodeName(program);
    }

    /// In place of this program, so that signals, terminal and exit status are the server's.
    [[noreturn]] void becomeServer(
        const QByteArray& program, std::vector<std::string> arguments, const QString& folder)
    {
        if (chdir(QFile::encodeName(folder).constData()) != 0)
            refuse(u"%1 can't be served: %2"_s.arg(folder, systemErrorText()));
        arguments.insert(arguments.begin(), program.toStdString());
        std::vector<char*> pointers;
        pointers.reserve(arguments.size() + 1);
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        execv(program.constData(), pointers.data());
        refuse(u"the preview server %1 can't be started: %2"_s.arg(
            QFile::decodeName(program), systemErrorText()));
    }

} // namespace

void addServeCommand(CLI::App& program, Action& chosen)
{
    CLI::App* command
        = program.add_subcommand("serve", "Show a book to the tablets of this network");
    const auto options = std::make_shared<ServeOptions>();
    options->addTo(*command);
    command->callback([&chosen, options] {
        chosen = [options]() -> ExitCode {
            const QString folder = folderToServe(pathFromArgument(options->book));
            becomeServer(serverProgram(), options->serverArguments(), folder);
        };
    });
}

} // namespace leafcast
