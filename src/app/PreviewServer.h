// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStringList>

namespace leafcast {

/// The program "iPadPreview" of a book, which shows the book to the tablets of the network. It ends
/// with this object.
class PreviewServer : public QObject {
    Q_OBJECT

public:
    explicit PreviewServer(QObject* parent = nullptr);
    ~PreviewServer() override;

    /// Starts the copy that lies in a book's folder, in that folder. One that runs is ended first.
    void start(const QString& folder);
    void stop();

    bool isRunning() const { return iTask.state() != QProcess::NotRunning; }
    /// Those that other devices reach come first; empty until the server has said them.
    const QStringList& addresses() const { return iAddresses; }
    /// A clause for people; empty while there is no failure.
    const QString& failure() const { return iFailure; }

Q_SIGNALS:
    /// Addresses or failure are others now.
    void changed();

private:
    void readAddresses();
    void fail(const QString& reason);

    QProcess iTask;
    QStringList iAddresses;
    QString iFailure;
    bool iIsEnding = false;
};

} // namespace leafcast
