// SPDX-License-Identifier: MIT
#include "cli/PasswordOptions.h"

#include "cli/Command.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    QString firstLineOf(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            throw CommandFailure(ExitCode::InputUnreadable,
                u"the password file %1 can't be read: %2"_s.arg(path, file.errorString()));
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        return QString::fromUtf8(line);
    }

} // namespace

void PasswordOptions::addTo(CLI::App& command)
{
    auto* typed = command.add_option(
        "--password", password, "Password of a locked PDF (Env:LEAFCAST_PASSWORD)");
    command.add_option("--password-file", file, "File whose first line is the password")
        ->type_name("FILE")
        ->excludes(typed);
}

QString PasswordOptions::chosen() const
{
    if (password)
        return fromArgument(*password);
    return file.empty() ? qEnvironmentVariable("LEAFCAST_PASSWORD")
                        : firstLineOf(pathFromArgument(file));
}

} // namespace leafcast
