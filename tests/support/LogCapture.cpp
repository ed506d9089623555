// SPDX-License-Identifier: MIT
#include "support/LogCapture.h"

#include <log4cplus/appender.h>
#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    class CollectingAppender : public log4cplus::Appender {
    public:
        ~CollectingAppender() override { destructorImpl(); }
        void close() override { closed = true; }

        QStringList lines() const
        {
            const log4cplus::thread::MutexGuard guard(access_mutex); // append() has it
            return iLines;
        }

    protected:
        void append(const log4cplus::spi::InternalLoggingEvent& event) override
        {
            const auto level = log4cplus::getLogLevelManager().toString(event.getLogLevel());
            iLines.append(u"%1 %2: %3"_s.arg(QString::fromStdString(level),
                QString::fromStdString(event.getLoggerName()),
                QString::fromStdString(event.getMessage())));
        }

    private:
        QStringList iLines;
    };

} // namespace

struct LogCapture::Sink {
    log4cplus::helpers::SharedObjectPtr<CollectingAppender> appender{ new CollectingAppender };
    log4cplus::LogLevel formerLevel = log4cplus::Logger::getRoot().getLogLevel();
};

LogCapture::LogCapture()
    : iSink(std::make_unique<Sink>())
{
    log4cplus::Logger root = log4cplus::Logger::getRoot();
    root.addAppender(log4cplus::SharedAppenderPtr(iSink->appender.get()));
    root.setLogLevel(log4cplus::WARN_LOG_LEVEL);
}

LogCapture::~LogCapture()
{
    log4cplus::Logger root = log4cplus::Logger::getRoot();
    root.removeAppender(log4cplus::SharedAppenderPtr(iSink->appender.get()));
    root.setLogLevel(iSink->formerLevel);
}

QStringList LogCapture::lines() const
{
    return iSink->appender->lines();
}

} // namespace leafcast
