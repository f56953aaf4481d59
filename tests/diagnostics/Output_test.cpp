// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"
#include "diagnostics/Diagnostics.h"

#include <chrono>
#include <csignal>
#include <thread>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

// Descriptors that are closed, full or slow cost nothing but the text.

namespace {

volatile std::sig_atomic_t gSignals = 0;

void countSignal(int)
{
    gSignals = gSignals + 1;
}

/// Counts a signal while it lives; calls that it interrupts are not taken up again.
class CountedSignal
{
public:
    explicit CountedSignal(int signal)
        : mSignal(signal)
    {
        gSignals = 0;
        struct sigaction action = {};
        action.sa_handler = &countSignal;
        sigaction(signal, &action, &mFormer);
    }
    ~CountedSignal() { sigaction(mSignal, &mFormer, nullptr); }
    CountedSignal(const CountedSignal &) = delete;
    CountedSignal &operator=(const CountedSignal &) = delete;

    static int count() { return gSignals; }

private:
    int mSignal;
    struct sigaction mFormer = {};
};

sigset_t setOf(int signal)
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    return set;
}

bool isPending(int signal)
{
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, signal) == 1;
}

bool isBlocked(int signal)
{
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return sigismember(&mask, signal) == 1;
}

bool isOpen(int descriptor)
{
    return fcntl(descriptor, F_GETFD) != -1;
}

/// Two connected descriptors: what is written to `in` is read from `out`.
class Output : public testing::Test
{
protected:
    Output() { EXPECT_EQ(pipe(mEnds), 0); }
    ~Output() override
    {
        close(mEnds[0]);
        close(mEnds[1]);
    }

    void useSocket()
    {
        close(mEnds[0]);
        close(mEnds[1]);
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, mEnds), 0);
        const int small = 1;
        setsockopt(in(), SOL_SOCKET, SO_SNDBUF, &small, sizeof small);
    }

    int out() const { return mEnds[0]; }
    int in() const { return mEnds[1]; }

    void closeReader()
    {
        close(mEnds[0]);
        mEnds[0] = -1;
    }

    /// Returns how much fits.
    size_t fill()
    {
        const int flags = fcntl(in(), F_GETFL);
        fcntl(in(), F_SETFL, flags | O_NONBLOCK);
        size_t size = 0;
        while (write(in(), "#", 1) == 1) {
            ++size;
        }
        fcntl(in(), F_SETFL, flags);
        return size;
    }

    /// All that is there.
    std::string waiting()
    {
        fcntl(out(), F_SETFL, O_NONBLOCK);
        std::string result;
        char buffer[4096];
        for (;;) {
            const ssize_t size = read(out(), buffer, sizeof buffer);
            if (size <= 0) {
                return result;
            }
            result.append(buffer, size_t(size));
        }
    }

    /// What a reader gets that rests after each piece, while `work` writes.
    std::string slowlyRead(const std::function<void()> &work)
    {
        std::string result;
        const sigset_t alarm = setOf(SIGALRM);
        pthread_sigmask(SIG_BLOCK, &alarm, nullptr);
        std::thread reader([this, &result] {
            char buffer[3000];
            ssize_t size = 0;
            while ((size = read(out(), buffer, sizeof buffer)) > 0) {
                result.append(buffer, size_t(size));
                std::this_thread::sleep_for(std::chrono::microseconds(200));
            }
        });
        pthread_sigmask(SIG_UNBLOCK, &alarm, nullptr);
        work();
        close(mEnds[1]);
        mEnds[1] = -1;
        reader.join();
        return result;
    }

private:
    int mEnds[2];
};

TEST_F(Output, StaysOpen)
{
    debugLogFd(0, in(), "x");
    memoryCheckFd(0, in(), "x", 1);
    EXPECT_EQ(waiting(), "x\n78\n");
    EXPECT_TRUE(isOpen(in()));
}

TEST_F(Output, DescriptorsThatAreNotOpenAreIgnored)
{
    const int closed = dup(in());
    close(closed);
    for (const int descriptor : {-1, INT_MIN, INT_MAX, closed, out()}) {
        debugLogFd(0, descriptor, "%s", "lost");
        memoryCheckFd(0, descriptor, "lost", 4);
    }
    debugLogFd(0, in(), "%s", "next");
    EXPECT_EQ(waiting(), "next\n");
}

TEST_F(Output, FullDeviceIsIgnored)
{
    const int full = open("/dev/full", O_WRONLY);
    ASSERT_NE(full, -1);
    debugLogFd(0, full, "lost");
    memoryCheckFd(0, full, "lost", 4);
    EXPECT_TRUE(isOpen(full));
    close(full);
}

TEST_F(Output, ClosedPipeRaisesNoSignal)
{
    const CountedSignal counted(SIGPIPE);
    closeReader();
    debugLogFd(0, in(), "lost");
    memoryCheckFd(0, in(), "lost", 4);
    EXPECT_EQ(CountedSignal::count(), 0);
    EXPECT_FALSE(isPending(SIGPIPE));
    EXPECT_FALSE(isBlocked(SIGPIPE));
    EXPECT_TRUE(isOpen(in()));
}

TEST_F(Output, ClosedStandardErrorStreamRaisesNoSignal)
{
    const CountedSignal counted(SIGPIPE);
    closeReader();
    standardErrorOf([this] {
        dup2(in(), STDERR_FILENO);
        debugLog(0, "lost");
        memoryCheck(0, "lost", 4);
        close(STDERR_FILENO);
        debugLog(0, "lost");
        memoryCheck(0, "lost", 4);
    });
    EXPECT_EQ(CountedSignal::count(), 0);
    EXPECT_FALSE(isPending(SIGPIPE));
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "next"); }), "DEBUG: next\n");
}

TEST_F(Output, SignalThatWasThereBeforeStays)
{
    const CountedSignal counted(SIGPIPE);
    const sigset_t set = setOf(SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    pthread_kill(pthread_self(), SIGPIPE);
    closeReader();
    debugLogFd(0, in(), "lost");
    EXPECT_TRUE(isPending(SIGPIPE));
    EXPECT_TRUE(isBlocked(SIGPIPE));
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    EXPECT_EQ(CountedSignal::count(), 1);
}

TEST_F(Output, FullPipeThatDoesNotBlockLosesTheText)
{
    const size_t size = fill();
    fcntl(in(), F_SETFL, O_NONBLOCK);
    debugLogFd(0, in(), "lost");
    memoryCheckFd(0, in(), "lost", 4);
    EXPECT_EQ(waiting(), std::string(size, '#'));
    debugLogFd(0, in(), "next");
    EXPECT_EQ(waiting(), "next\n");
}

// Without an end of the patience these would hang.

TEST_F(Output, FullPipeThatNobodyReadsLosesTheText)
{
    const size_t size = fill();
    debugLogFd(0, in(), "lost");
    EXPECT_EQ(waiting(), std::string(size, '#'));
    debugLogFd(0, in(), "next");
    EXPECT_EQ(waiting(), "next\n");
}

TEST_F(Output, LongDumpIntoAFullPipeIsDroppedAsAWhole)
{
    const std::string data(100000, 'x');
    const size_t size = fill();
    memoryCheckFd(0, in(), data.data(), int(data.size()));
    EXPECT_EQ(waiting(), std::string(size, '#'));
}

TEST_F(Output, LongTextIntoAPipeThatNobodyReadsIsCut)
{
    const std::string text(1000000, 'x');
    debugLogFd(0, in(), "%s", text.c_str());
    const std::string arrived = waiting();
    EXPECT_FALSE(arrived.empty());
    EXPECT_EQ(arrived, std::string(arrived.size(), 'x'));
}

TEST_F(Output, FullStandardErrorStreamThatNobodyReadsLosesTheText)
{
    const size_t size = fill();
    standardErrorOf([this] {
        dup2(in(), STDERR_FILENO);
        debugLog(0, "lost");
        memoryCheck(0, "lost", 4);
    });
    EXPECT_EQ(waiting(), std::string(size, '#'));
}

TEST_F(Output, SlowReaderOfAPipeGetsEverything)
{
    const std::string text(300000, 'x');
    EXPECT_EQ(slowlyRead([&] { debugLogFd(0, in(), "%s", text.c_str()); }), text + "\n");
}

TEST_F(Output, SlowReaderOfASocketGetsEverything)
{
    useSocket();
    const std::string text(300000, 'x');
    EXPECT_EQ(slowlyRead([&] { debugLogFd(0, in(), "%s", text.c_str()); }), text + "\n");
}

TEST_F(Output, SignalsInterruptNothing)
{
    const CountedSignal counted(SIGALRM);
    const itimerval often{{0, 500}, {0, 500}};
    const itimerval never{};
    const std::string text(300000, 'x');
    const std::string arrived = slowlyRead([&] {
        setitimer(ITIMER_REAL, &often, nullptr);
        debugLogFd(0, in(), "%s", text.c_str());
        setitimer(ITIMER_REAL, &never, nullptr);
    });
    EXPECT_EQ(arrived, text + "\n");
    EXPECT_GT(CountedSignal::count(), 0);
}

} // namespace
