// Running the kornum program as a user runs it, on files made for the test.
#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace CliTest {

struct Outcome {
    int status;
    std::string output;  // standard output and standard error together
};

// Runs a shell command line; what it writes to its standard output is the outcome's output.
inline Outcome RunShell(const std::string& command) {
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char buffer[4096];
    std::size_t count;
    while ((count = fread(buffer, 1, sizeof buffer, pipe)) > 0) output.append(buffer, count);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

// The program with these arguments (and this text on its standard input), stopped after
// 60 seconds (exit status 124) should it hang.
inline Outcome RunKornum(const std::string& arguments, const std::string& input = "") {
    return RunShell("printf '%s' '" + input + "' | timeout 60 " + KORNUM_CLI_PATH + " " + arguments + " 2>&1");
}

// A fixture with a private directory for input files.
class CliFiles : public ::testing::Test {
protected:
    std::filesystem::path directory = std::filesystem::temp_directory_path() /
                                      ("kornum-cli-" + std::to_string(::getpid()));
    void SetUp() override { std::filesystem::create_directories(directory); }
    void TearDown() override { std::filesystem::remove_all(directory); }
    std::string File(const std::string& name, const std::string& content) {
        const auto path = directory / name;
        std::ofstream(path) << content;
        return path.string();
    }
};

}  // namespace CliTest
