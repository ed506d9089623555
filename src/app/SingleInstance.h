// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QStringList>

namespace leafcast {

/// Lets one program of a user run at a time, because they would share the preview folder. One that
/// is started later hands its files to the first.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// The name tells users apart, and tests.
    explicit SingleInstance(const QString& name, QObject* parent = nullptr);

    /// False when another one runs; that one has been told the files then, and comes to the front.
    bool claim(const QStringList& files);

Q_SIGNALS:
    void startedAgain(const QStringList& files);

private:
    void handOver(const QStringList& files) const;
    void receive();

    QString iName;
    QLockFile iLock; // of a program that was killed it is void
    QLocalServer iServer;
};

} // namespace leafcast
