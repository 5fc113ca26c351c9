// Replays a transcript: a text file of commands and of what they print.
//
//   # a comment
//   $ printf '2024-02-30\n' | calvoro-cli convert --from CE --to ISO
//
//   ! calvoro-cli: stdin:1: not valid in CE: '2024-02-30'
//   ? 1
//
// "$ " begins a command for bash (with pipefail), "! " a line on the standard error, "? " the exit status
// unless it is 0; every other line is the standard output, to the letter. "\ no line end" stands behind
// output whose last line is not ended. The commands of one transcript share an empty directory. The whole
// transcript is written anew from its commands and must come out the same.
//
//   TranscriptRunner PROGRAM TRANSCRIPT            compares; differences on the standard output
//   TranscriptRunner --update PROGRAM TRANSCRIPT   writes what was seen into the transcript
//   TranscriptRunner --except LIST PROGRAM TRANSCRIPT
//                                                  leaves out what cannot be run where the program runs:
//                                                  lines "NAME: COMMAND", where TRANSCRIPT is NAME.txt

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// An empty directory that goes away with the object.
class ScratchDirectory {
public:
    ScratchDirectory() {
        std::string name = (fs::temp_directory_path() / "calvoro-transcript-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::exit(2);
        path_ = name;
        fs::create_directory(path_ / "work");
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;
    ~ScratchDirectory() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    fs::path Work() const { return path_ / "work"; }
    fs::path Output() const { return path_ / "output"; }
    fs::path Messages() const { return path_ / "messages"; }

private:
    fs::path path_;
};

void Redirect(const char* path, int flags, int descriptor) {
    const int opened = open(path, flags, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0) _exit(126);
    close(opened);
}

int RunCommand(const std::string& command, const ScratchDirectory& scratch) {
    const pid_t child = fork();
    if (child == 0) {
        if (chdir(scratch.Work().c_str()) != 0) _exit(126);
        Redirect("/dev/null", O_RDONLY, STDIN_FILENO);
        Redirect(scratch.Output().c_str(), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
        Redirect(scratch.Messages().c_str(), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
        execlp("bash", "bash", "-o", "pipefail", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) std::exit(2);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string RecordOf(const std::string& command, const ScratchDirectory& scratch) {
    const int status = RunCommand(command, scratch);
    std::string record = "$ " + command + "\n" + ReadFile(scratch.Output());
    if (record.back() != '\n') record += "\n\\ no line end\n";
    for (const std::string& line : Lines(ReadFile(scratch.Messages()))) record += "! " + line + "\n";
    if (status != 0) record += "? " + std::to_string(status) + "\n";
    return record;
}

/// The commands of a transcript that a list leaves out.
std::vector<std::string> LeftOut(const fs::path& list, const fs::path& transcript) {
    const std::string name = transcript.stem().string() + ": ";
    std::vector<std::string> commands;
    for (const std::string& line : Lines(ReadFile(list))) {
        if (line.starts_with(name)) commands.push_back(line.substr(name.size()));
    }
    return commands;
}

/// Takes a command off the list of those that are left out.
bool TakeOff(std::vector<std::string>& leftOut, const std::string& command) {
    const auto found = std::find(leftOut.begin(), leftOut.end(), command);
    if (found == leftOut.end()) return false;
    leftOut.erase(found);
    return true;
}

void PrintDifference(const std::string& expected, const std::string& seen) {
    const std::vector<std::string> expectedLines = Lines(expected);
    const std::vector<std::string> seenLines = Lines(seen);
    std::size_t same = 0;
    while (same < expectedLines.size() && same < seenLines.size() && expectedLines[same] == seenLines[same]) {
        ++same;
    }
    std::cout << "The transcript and what was seen differ from line " << same + 1 << " on.\nExpected:\n";
    for (std::size_t i = same; i < expectedLines.size() && i < same + 12; ++i) {
        std::cout << "  " << expectedLines[i] << '\n';
    }
    std::cout << "Seen:\n";
    for (std::size_t i = same; i < seenLines.size() && i < same + 12; ++i) {
        std::cout << "  " << seenLines[i] << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    const bool updates = argc == 4 && std::string_view(argv[1]) == "--update";
    const bool leavesOut = argc == 5 && std::string_view(argv[1]) == "--except";
    if (argc != 3 && !updates && !leavesOut) {
        std::cerr << "Usage: TranscriptRunner [--update | --except LIST] PROGRAM TRANSCRIPT\n";
        return 2;
    }
    const fs::path program = argv[argc - 2];
    const fs::path transcript = argv[argc - 1];
    const std::string path = fs::absolute(program).parent_path().string() + ":" + std::getenv("PATH");
    setenv("PATH", path.c_str(), 1);
    setenv("TZ", "UTC", 1);

    const ScratchDirectory scratch;
    const std::string expected = ReadFile(transcript);
    std::vector<std::string> leftOut = leavesOut ? LeftOut(argv[2], transcript) : std::vector<std::string>();
    const std::size_t exceptions = leftOut.size();
    std::string seen;
    std::size_t commands = 0;
    bool isLeftOut = false;
    for (const std::string& line : Lines(expected)) {
        if (line.starts_with("#")) {
            seen += line + "\n";
        } else if (line.starts_with("$ ")) {
            isLeftOut = TakeOff(leftOut, line.substr(2));
            seen += isLeftOut ? line + "\n" : RecordOf(line.substr(2), scratch);
            ++commands;
        } else if (isLeftOut) {
            seen += line + "\n";
        }
    }
    if (!leftOut.empty()) {
        std::cout << transcript << " has not the command that is to be left out: " << leftOut.front() << '\n';
        return 1;
    }
    if (commands == exceptions) {
        std::cout << transcript << " has no command.\n";
        return 1;
    }
    if (updates) {
        std::ofstream(transcript, std::ios::binary) << seen;
        return 0;
    }
    if (seen != expected) {
        PrintDifference(expected, seen);
        return 1;
    }
    std::cout << commands - exceptions << " commands replayed.\n";
    if (exceptions > 0) std::cout << exceptions << " commands left out.\n";
    return 0;
}
