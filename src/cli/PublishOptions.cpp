// SPDX-License-Identifier: MIT
#include "cli/PublishOptions.h"

#include "cli/Command.h"
#include "pages/ImportQuality.h"
#include "publish/BookName.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    std::map<std::string, int> levelsByName()
    {
        std::map<std::string, int> levels;
        for (size_t level = 0; level < importQualities.size(); ++level)
            levels[importQualities[level].name] = static_cast<int>(level);
        return levels;
    }

    /// The help names the range where it is not obvious.
    CLI::Validator between(int lowest, int highest)
    {
        return CLI::Range(lowest, highest).description("");
    }

    void addPageOptions(PublishOptions& options, CLI::App& command)
    {
        command.add_option("--pages", options.pages, "Pages to take, such as 1-3,7")
            ->type_name("RANGE")
            ->capture_default_str();
        command
            .add_option("--quality", options.qualityLevel,
                "Of a PDF's pages: 0 to 4, or best, high, medium, low, smallest")
            ->transform(CLI::Transformer(levelsByName(), CLI::ignore_case).description(""))
            ->check(between(0, static_cast<int>(importQualities.size()) - 1))
            ->type_name("LEVEL")
            ->envname("LEAFCAST_QUALITY")
            ->capture_default_str();
        command.add_flag("--no-links", options.noLinks, "Leave out the links");
        command.add_flag("--no-outline", options.noOutline, "Leave out the table of contents");
    }

    void addBookOptions(PublishOptions& options, CLI::App& command)
    {
        command.add_option(
            "--title", options.title, "Title of the book [the PDF's own, else the file's name]");
        command.add_option("--description", options.description,
            "What the page says of the book to search engines, and where it is shared");
        command.add_option("--keywords", options.keywords, "Its keywords, separated by commas");
        command.add_option("--name", options.name,
            "File name of the page [index.html], or of the package [the input's]");
        command.add_flag(
            "--app", options.app, "Write a package NAME.app, which a double click opens");
        command.add_flag("--zip", options.zip,
            "Pack the book too, for sending: OUT_FOLDER.zip, or NAME.zip of a package");
    }

    void addWorkOptions(PublishOptions& options, CLI::App& command)
    {
        command
            .add_option(
                "--jobs", options.jobs, "Pages drawn at once, 1 to 64 [one a processor core]")
            ->check(between(1, 64))
            ->envname("LEAFCAST_JOBS");
        command
            .add_option(
                "--page-seconds", options.limits.pageSeconds, "Give up on a page after so long")
            ->check(between(1, 3600))
            ->capture_default_str();
        command
            .add_option("--page-memory", options.limits.memoryMebibytes,
                "Memory of a page's worker, in MiB")
            ->check(between(128, 65536))
            ->capture_default_str();
    }

    void addOutputOptions(PublishOptions& options, CLI::App& command)
    {
        command.add_flag("--force", options.force, "Write over what is no book of ours");
        command.add_flag("--open", options.open, "Open the book afterwards");
        command.add_flag("-q,--quiet", options.quiet, "Say nothing but errors");
        command.add_flag("--json", options.json, "Write a report as JSON to standard output");
    }

    QString fileName(const std::string& name)
    {
        QString text = fromArgument(name);
        const QString problem = nameProblem(text);
        if (!problem.isEmpty())
            throw CommandFailure(ExitCode::WrongUsage, u"--name %1: %2"_s.arg(text, problem));
        return text;
    }

} // namespace

void PublishOptions::addTo(CLI::App& command)
{
    command
        .add_option("INPUT", inputsAndOutput,
            "A PDF, or images or a folder of them; last, the folder for the book")
        ->required()
        ->expected(2, CLI::detail::expected_max_vector_size)
        ->option_text("... OUT_FOLDER");
    addPageOptions(*this, command);
    addBookOptions(*this, command);
    templateOptions.addTo(command);
    passwordOptions.addTo(command);
    addWorkOptions(*this, command);
    addOutputOptions(*this, command);
}

QStringList PublishOptions::inputs() const
{
    QStringList paths;
    for (size_t i = 0; i + 1 < inputsAndOutput.size(); ++i)
        paths.append(pathFromArgument(inputsAndOutput[i]));
    return paths;
}

QString PublishOptions::outputFolder() const
{
    return pathFromArgument(inputsAndOutput.back());
}

QString PublishOptions::packageName() const
{
    QString packageName
        = name ? packageNameOf(fileName(*name)) : nameOfInput(inputs().constFirst());
    const QString problem = nameProblem(packageName);
    if (!problem.isEmpty())
        throw CommandFailure(ExitCode::WrongUsage,
            u"the package can't be called \"%1\": %2; give it a name with --name"_s.arg(
                packageName, problem));
    return packageName;
}

QString PublishOptions::pageFileName() const
{
    if (!name)
        return {};
    const QString page = fileName(*name);
    return QFileInfo(page).suffix().isEmpty() ? page + u".html"_s : page;
}

int PublishOptions::quality() const
{
    return qualityOfLevel(qualityLevel);
}

} // namespace leafcast
