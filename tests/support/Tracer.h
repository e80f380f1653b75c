// Runs a piece of code in a child process and disturbs it at one of its system calls.
#pragma once

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quendrel::test {

/// What happens at the chosen system call: the process is killed, or the call fails with an error.
struct Disturbance {
    /// The error number, or nothing for a kill.
    std::optional<int> error;
};

/// Follows one child process from system call to system call.
class Tracer {
public:
    explicit Tracer(const std::function<void()>& work) : child_(fork()) {
        if (child_ < 0) throw std::runtime_error("no child process");
        if (child_ == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            static_cast<void>(raise(SIGSTOP));
            try {
                work();
            } catch (const std::exception&) {
                _exit(1);
            }
            _exit(0);
        }
        WaitForStop();
    }
    ~Tracer() {
        if (!running_) return;
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
    Tracer(const Tracer&) = delete;
    Tracer& operator=(const Tracer&) = delete;

    /// Disturbs the `count`-th system call, from 0 on; false where the child has made fewer.
    bool Disturb(int count, const Disturbance& disturbance) {
        for (int i = 0; i < count; ++i) {
            if (!ToNextStop() || !ToNextStop()) return false;
        }
        return ToNextStop() && DisturbHere(disturbance);
    }

    /// Disturbs the `count`-th of the calls of one kind, by the kernel's number.
    bool DisturbKind(long kind, int count, const Disturbance& disturbance) {
        while (ToNextStop()) {
            if (Registers().orig_rax == static_cast<std::uint64_t>(kind) && count-- == 0) {
                return DisturbHere(disturbance);
            }
            ToNextStop();
        }
        return false;
    }

    /// Lets the child run to its end and tells which files or folders the calls of some kinds were
    /// given as their open file, in order: the kind's name and the path.
    std::vector<std::string> Follow(const std::map<long, std::string>& kinds) {
        std::vector<std::string> calls;
        for (; ToNextStop(); ToNextStop()) {
            const user_regs_struct registers = Registers();
            const auto kind = kinds.find(static_cast<long>(registers.orig_rax));
            if (kind == kinds.end()) continue;
            const std::string path = PathOf(registers.rdi);
            // Sanitizers test whether memory can be read by writing it into a pipe of their own.
            if (!path.starts_with("pipe:")) calls.push_back(kind->second + " " + path);
        }
        return calls;
    }

    /// Lets the child run to its end and tells the files and folders that it opened, in order: the
    /// path, and "alone" where no program that it starts would have it open too.
    std::vector<std::string> FollowOpening() {
        std::vector<std::string> opened;
        while (ToNextStop()) {
            const user_regs_struct registers = Registers();
            if (!ToNextStop()) break;
            if (registers.orig_rax != SYS_openat) continue;
            const std::string alone = (registers.rdx & O_CLOEXEC) != 0 ? " alone" : " inherited";
            opened.push_back(PathOf(Registers().rax) + alone);
        }
        return opened;
    }

    /// Whether the child has done its work without an exception.
    bool Succeeded() const { return succeeded_; }

private:
    bool DisturbHere(const Disturbance& disturbance) {
        if (!disturbance.error) return true;
        Change([](user_regs_struct& registers) { registers.orig_rax = ~0ULL; });
        if (ToNextStop()) {
            Change([&](user_regs_struct& registers) {
                registers.rax = static_cast<std::uint64_t>(-std::int64_t{*disturbance.error});
            });
        }
        while (running_) ToNextStop();
        return true;
    }

    /// On to the entry or the exit of a system call; false where the child has ended.
    bool ToNextStop() {
        if (!running_) return false;
        ptrace(PTRACE_SYSCALL, child_, nullptr, nullptr);
        WaitForStop();
        return running_;
    }

    void WaitForStop() {
        int status = 0;
        waitpid(child_, &status, 0);
        running_ = WIFSTOPPED(status) && WSTOPSIG(status) != SIGABRT && WSTOPSIG(status) != SIGSEGV;
        if (WIFSTOPPED(status) && !running_) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
        }
        succeeded_ = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

    std::string PathOf(std::uint64_t descriptor) const {
        const std::string link =
            "/proc/" + std::to_string(child_) + "/fd/" + std::to_string(descriptor);
        std::error_code none;
        return std::filesystem::read_symlink(link, none).string();
    }

    user_regs_struct Registers() const {
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, child_, nullptr, &registers);
        return registers;
    }

    template <typename Edit>
    void Change(const Edit& edit) {
        user_regs_struct registers = Registers();
        edit(registers);
        ptrace(PTRACE_SETREGS, child_, nullptr, &registers);
    }

    pid_t child_;
    bool running_ = true;
    bool succeeded_ = false;
};

}  // namespace quendrel::test
