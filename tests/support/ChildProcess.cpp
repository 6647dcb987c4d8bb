// SPDX-License-Identifier: MIT
#include "support/ChildProcess.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>

namespace {

void CloseFd(int& fd) {
  if (fd >= 0) {
    close(fd);
    fd = -1;
  }
}

}  // namespace

bool CanRunChildren() {
  return true;
}

ChildResult RunChild(const std::vector<std::string>& argv, double timeoutSeconds) {
  ChildResult result;
  if (argv.empty())
    return result;
  int outPipe[2] = {-1, -1};
  int errPipe[2] = {-1, -1};
  if (pipe(outPipe) != 0)
    return result;
  if (pipe(errPipe) != 0) {
    CloseFd(outPipe[0]);
    CloseFd(outPipe[1]);
    return result;
  }
  std::vector<char*> args;
  for (const std::string& a : argv)
    args.push_back(const_cast<char*>(a.c_str()));
  args.push_back(nullptr);

  const pid_t pid = fork();
  if (pid == 0) {
    dup2(outPipe[1], STDOUT_FILENO);
    dup2(errPipe[1], STDERR_FILENO);
    close(outPipe[0]);
    close(outPipe[1]);
    close(errPipe[0]);
    close(errPipe[1]);
    execv(args[0], args.data());
    _exit(127);
  }
  CloseFd(outPipe[1]);
  CloseFd(errPipe[1]);
  if (pid < 0) {
    CloseFd(outPipe[0]);
    CloseFd(errPipe[0]);
    return result;
  }

  const auto deadline = std::chrono::steady_clock::now() +
                        std::chrono::milliseconds(static_cast<long long>(timeoutSeconds * 1000));
  int fds[2] = {outPipe[0], errPipe[0]};
  std::string* sinks[2] = {&result.out, &result.err};
  while (fds[0] >= 0 || fds[1] >= 0) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) {
      result.timedOut = true;
      kill(pid, SIGKILL);
      break;
    }
    pollfd polls[2];
    nfds_t count = 0;
    int which[2] = {-1, -1};
    for (int i = 0; i < 2; ++i) {
      if (fds[i] >= 0) {
        polls[count].fd = fds[i];
        polls[count].events = POLLIN;
        polls[count].revents = 0;
        which[count] = i;
        ++count;
      }
    }
    const int ready = poll(polls, count, static_cast<int>(left.count() > 1000 ? 1000 : left.count()));
    if (ready < 0 && errno != EINTR)
      break;
    for (nfds_t p = 0; p < count; ++p) {
      if ((polls[p].revents & (POLLIN | POLLHUP | POLLERR)) == 0)
        continue;
      const int i = which[p];
      char buffer[65536];
      const ssize_t n = read(fds[i], buffer, sizeof buffer);
      if (n > 0)
        sinks[i]->append(buffer, static_cast<std::size_t>(n));
      else if (n == 0 || errno != EINTR)
        CloseFd(fds[i]);
    }
  }
  CloseFd(fds[0]);
  CloseFd(fds[1]);
  int status = 0;
  while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
  }
  if (!result.timedOut && WIFEXITED(status))
    result.exitCode = WEXITSTATUS(status);
  return result;
}

#elif defined(_WIN32)
#include <windows.h>

#include <thread>

namespace {

// Quotes one argument so that the C runtime of the started program splits the command line back into the
// same argument (backslashes before a quote are doubled, quotes escaped).
std::string QuoteArgument(const std::string& arg) {
  if (!arg.empty() && arg.find_first_of(" \t\n\v\"") == std::string::npos)
    return arg;
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (char c : arg) {
    if (c == '\\') {
      ++backslashes;
      continue;
    }
    if (c == '"')
      quoted.append(backslashes * 2 + 1, '\\');
    else
      quoted.append(backslashes, '\\');
    quoted += c;
    backslashes = 0;
  }
  quoted.append(backslashes * 2, '\\');
  quoted += '"';
  return quoted;
}

// Reads `pipe` into `sink` until every writer has closed it.
void Drain(HANDLE pipe, std::string* sink) {
  char buffer[65536];
  DWORD n = 0;
  while (ReadFile(pipe, buffer, sizeof buffer, &n, nullptr) && n > 0)
    sink->append(buffer, n);
}

// A console program's text streams end each line with "\r\n" on Windows; the tests expect "\n" everywhere.
std::string WithLfLineEnds(const std::string& text) {
  std::string lf;
  lf.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
      continue;
    lf += text[i];
  }
  return lf;
}

}  // namespace

bool CanRunChildren() {
  return true;
}

ChildResult RunChild(const std::vector<std::string>& argv, double timeoutSeconds) {
  ChildResult result;
  if (argv.empty())
    return result;
  SECURITY_ATTRIBUTES inheritable{};
  inheritable.nLength = sizeof inheritable;
  inheritable.bInheritHandle = TRUE;
  HANDLE outRead = nullptr, outWrite = nullptr, errRead = nullptr, errWrite = nullptr;
  if (!CreatePipe(&outRead, &outWrite, &inheritable, 0))
    return result;
  if (!CreatePipe(&errRead, &errWrite, &inheritable, 0)) {
    CloseHandle(outRead);
    CloseHandle(outWrite);
    return result;
  }
  // Only the writing ends go to the child; its input is the null device, so it can never wait for a key.
  SetHandleInformation(outRead, HANDLE_FLAG_INHERIT, 0);
  SetHandleInformation(errRead, HANDLE_FLAG_INHERIT, 0);
  const HANDLE nul = CreateFileA("NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable,
                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);

  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = nul;
  startup.hStdOutput = outWrite;
  startup.hStdError = errWrite;
  std::string commandLine;
  for (const std::string& a : argv)
    commandLine += (commandLine.empty() ? "" : " ") + QuoteArgument(a);
  PROCESS_INFORMATION process{};
  // Under wine on a busy machine a start fails now and then for no reason of the program's own, so a failed
  // start is tried twice more before the child counts as not started (a missing program fails all three).
  BOOL started = FALSE;
  for (int attempt = 0; attempt < 3 && !started; ++attempt) {
    if (attempt > 0)
      Sleep(200);
    started = CreateProcessA(argv[0].c_str(), commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                             nullptr, nullptr, &startup, &process);
  }
  CloseHandle(outWrite);
  CloseHandle(errWrite);
  if (nul != INVALID_HANDLE_VALUE)
    CloseHandle(nul);
  if (!started) {
    CloseHandle(outRead);
    CloseHandle(errRead);
    return result;
  }

  std::thread outReader(Drain, outRead, &result.out);
  std::thread errReader(Drain, errRead, &result.err);
  const DWORD waitMs = static_cast<DWORD>(timeoutSeconds * 1000);
  if (WaitForSingleObject(process.hProcess, waitMs) == WAIT_TIMEOUT) {
    result.timedOut = true;
    TerminateProcess(process.hProcess, 1);
    WaitForSingleObject(process.hProcess, INFINITE);
  }
  outReader.join();
  errReader.join();
  DWORD code = 0;
  if (!result.timedOut && GetExitCodeProcess(process.hProcess, &code))
    result.exitCode = static_cast<int>(code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  CloseHandle(outRead);
  CloseHandle(errRead);
  result.out = WithLfLineEnds(result.out);
  result.err = WithLfLineEnds(result.err);
  return result;
}

#else

bool CanRunChildren() {
  return false;
}

ChildResult RunChild(const std::vector<std::string>& /*argv*/, double /*timeoutSeconds*/) {
  ChildResult result;
  result.err = "running programs is not supported on this system";
  return result;
}

#endif

std::string FindProgramOnPath(const std::string& name) {
#if defined(_WIN32)
  const char separator = ';';
  const std::vector<std::string> suffixes = {"", ".exe"};
#else
  const char separator = ':';
  const std::vector<std::string> suffixes = {""};
#endif
  const char* path = std::getenv("PATH");
  if (path == nullptr)
    return "";
  const std::string folders(path);
  std::size_t start = 0;
  while (start <= folders.size()) {
    std::size_t end = folders.find(separator, start);
    if (end == std::string::npos)
      end = folders.size();
    const std::string folder = folders.substr(start, end - start);
    start = end + 1;
    if (folder.empty())
      continue;
    for (const std::string& suffix : suffixes) {
      std::error_code error;
      const std::filesystem::path candidate = std::filesystem::path(folder) / (name + suffix);
      if (std::filesystem::is_regular_file(candidate, error))
        return candidate.string();
    }
  }
  return "";
}
