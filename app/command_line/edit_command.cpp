#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/drawing_options.h"
#include "edit/EditServer.h"
#include "edit/EditSession.h"
#include "rules/rule_file.h"
#include "text/words.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

namespace firecheck {

namespace {

int portOf(const Options& options) {
    const auto given = options.value("port");
    if (!given)
        return 0;
    bool isNumber = false;
    const int port = given->toInt(&isNumber);
    constexpr int highest = 65535;
    if (!isNumber || port < 0 || port > highest)
        throw InputError("Option --port: expected a number from 0 to 65535, found \"" + given->toStdString() +
                         "\".");
    return port;
}

SiteFileOnDisk targetOf(const Options& options, const SiteFile& file) {
    if (const auto output = options.value("output"))
        return SiteFileOnDisk(*output);
    if (file.text.empty())
        throw InputError(options.arguments().first().toStdString() +
                         ": expected JSON to save the site to; name a file after --output");
    try {
        return SiteFileOnDisk(options.arguments().first(), file.text);
    } catch (const InputError& error) {
        throw InputError(std::string(error.what()) + "; name one after --output");
    }
}

/// The signals that end the server: the user's, those of other programs, and the terminal's end.
class EndSignals {
public:
    /// Threads that are started later leave these signals alone.
    EndSignals() {
        sigemptyset(&m_signals);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            sigaddset(&m_signals, signal);
        pthread_sigmask(SIG_BLOCK, &m_signals, nullptr);
    }

    void waitForOne() const {
        int signal = 0;
        sigwait(&m_signals, &signal);
    }

private:
    sigset_t m_signals{};
};

void print(const std::string& line) {
    Output output{QString()};
    output.write(line + "\n");
    output.commit();
}

void serveUntilEnd(EditServer& server, const EndSignals& endSignals) {
    std::atomic<bool> isOver = false;
    std::thread waiting([&] {
        endSignals.waitForOne();
        constexpr std::chrono::milliseconds moment(20);
        for (; !isOver; std::this_thread::sleep_for(moment))
            server.stop(); // in vain as long as it has not begun
    });
    server.serve();
    isOver = true;
    pthread_kill(waiting.native_handle(), SIGTERM); // where the page has ended it
    waiting.join();
}

} // namespace

int editCommand(const Options& options) {
    if (options.arguments().size() != 1)
        throw InputError("One site file is laid out at a time. Try \"firecheck help edit\".");
    const int port = portOf(options);
    const auto givenRules = options.value("rules");
    const std::string ruleFile = givenRules ? givenRules->toStdString() : defaultRuleFile();
    const RuleMap& rules = loadRules(ruleFile);
    const QString fileName = options.arguments().first();
    SiteFile file = loadSiteFile(fileName.toStdString(), drawingOptions(options));
    tellDoubtsOfDrawing(file, fileName.toStdString());
    SiteFileOnDisk target = targetOf(options, file);

    const EndSignals endSignals; // before any thread is started
    EditSession session(std::move(file), fileName.toStdString(), std::move(target), rules);
    EditServer server(session, port);
    print(server.address());
    serveUntilEnd(server, endSignals);
    if (!session.draft().isChanged())
        return kNothingFound;
    complain(fileName.toStdString() + ": changes were not saved, and are lost.");
    return kViolationsFound;
}

} // namespace firecheck
