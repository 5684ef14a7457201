#ifndef RUQGUI_TESTS_SUPPORT_CHILDPROCESS_H
#define RUQGUI_TESTS_SUPPORT_CHILDPROCESS_H

#include <memory>
#include <string>
#include <vector>

namespace support {

/// Another process of the test's program, which runs one function and ends. The registry is one object a
/// process, so a child that looks at it sees it as a freshly started program does.
///
/// A task is a function, or a lambda that captures nothing: what it needs comes as arguments, because where
/// a process cannot be copied the program is started anew.
class ChildProcess {
public:
    using Arguments = std::vector<std::string>;

    /// What the child says while it runs.
    class Output {
    public:
        explicit Output(int descriptor) : m_descriptor(descriptor) {}
        void write(const std::string& text); ///< Ends the child when nobody listens any more.

    private:
        int m_descriptor;
    };

    using Task = void (*)(Output& output, const Arguments& arguments);
    enum EnStart {
        eNow,
        eWhenTold ///< By letGo(); what the parent has in memory at the construction is what it may see.
    };

    explicit ChildProcess(Task task, const Arguments& arguments = {}, EnStart start = eNow);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess(); ///< Kills it when it still runs.

    void letGo();
    std::string readLine(); ///< Without its end; empty at the end of the output.
    void kill();

    struct Outcome {
        std::string output; ///< What readLine() did not take.
        std::string errors; ///< Its standard error.
        int status;         ///< 0: it ended by itself and well.
    };
    Outcome wait();

    /// For the main function: whether this program has been started as a child, and what it then returns.
    static bool isOne();
    static int runItsTask();

    /// As if the system had killed this process: nothing more runs.
    [[noreturn]] static void killThis();

private:
    struct Handles;
    std::unique_ptr<Handles> m_handles;
};

/// Runs \a task in a child to its end and returns what it returned and what it wrote on standard error.
ChildProcess::Outcome inChild(std::string (*task)());
ChildProcess::Outcome inChild(std::string (*task)(const ChildProcess::Arguments& arguments),
                              const ChildProcess::Arguments& arguments);

} // namespace support

#endif
