#include "Options.h"

#include "Output.h"
#include "Parameters.h"

#include <algorithm>
#include <cstdio>

namespace KornumCli {
namespace {

const Option HelpOption{"--help", "-h", "", "show this text and exit", nullptr};

const Option* Find(const CommandTable& command, std::string_view name) {
    if (name == HelpOption.Name || name == HelpOption.ShortName) return &HelpOption;
    for (const Option& option : command.Options)
        if (name == option.Name || (!option.ShortName.empty() && name == option.ShortName)) return &option;
    return nullptr;
}

std::string Spelling(const Option& option) {
    std::string text = option.ShortName.empty() ? "    " : option.ShortName + ", ";
    text += option.Name;
    if (!option.ValueName.empty()) text += " " + option.ValueName;
    return text;
}

}  // namespace

Option DecimalsOption(int& decimals) {
    return {"--decimals", "", "N", "fixed decimals, 0 to 255 (default: the shortest form\nthat reads back as the same value)",
            [&decimals](const std::string& v) { decimals = int(WholeNumber(v, "--decimals", 0, 255)); }};
}

std::string HelpText(const CommandTable& command) {
    std::string text = command.Usage + "\n";
    if (!command.Description.empty()) text += "\n" + command.Description;
    std::vector<const Option*> all;
    for (const Option& option : command.Options) all.push_back(&option);
    all.push_back(&HelpOption);
    std::size_t width = 0;
    for (const Option* option : all) width = std::max(width, Spelling(*option).size());
    text += "\nOptions:\n";
    for (const Option* option : all) {
        const std::string spelling = Spelling(*option);
        text += "  " + spelling + std::string(width - spelling.size() + 2, ' ');
        // Continuation lines of a long help text line up under its first line.
        for (const char c : option->Help) {
            text += c;
            if (c == '\n') text.append(width + 4, ' ');
        }
        text += '\n';
    }
    if (!command.Epilogue.empty()) text += "\n" + command.Epilogue;
    return text;
}

bool ParseArguments(const CommandTable& command, const std::vector<std::string>& arguments,
                    std::vector<std::string>& operands) {
    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsEnded || argument.size() < 2 || argument[0] != '-') {
            operands.push_back(argument);
            continue;
        }
        if (argument == "--") {
            optionsEnded = true;
            continue;
        }
        const std::size_t equals = argument.rfind("--", 0) == 0 ? argument.find('=') : std::string::npos;
        const std::string name = argument.substr(0, equals);
        const Option* option = Find(command, name);
        if (option == nullptr) {
            if (ReadsAsNumber(argument)) {
                operands.push_back(argument);
                continue;
            }
            throw UsageError("unknown option " + Quoted(name));
        }
        if (option == &HelpOption) return false;
        if (option->ValueName.empty()) {
            if (equals != std::string::npos) throw UsageError(option->Name + " takes no value");
            option->Apply("");
        } else if (equals != std::string::npos) {
            option->Apply(argument.substr(equals + 1));
        } else {
            if (i + 1 == arguments.size()) throw UsageError(option->Name + " needs a value (" + option->ValueName + ")");
            option->Apply(arguments[++i]);
        }
    }
    return true;
}

int RunCommand(const CommandTable& command, const std::vector<std::string>& arguments, Output& out,
               const std::function<int(const std::vector<std::string>& operands)>& run) {
    try {
        std::vector<std::string> operands;
        if (!ParseArguments(command, arguments, operands)) {
            out.Write(HelpText(command));
            return 0;
        }
        return run(operands);
    } catch (const UsageError& error) {
        std::fprintf(stderr, "kornum %s: %s\nTry 'kornum %s --help'.\n", command.Name.c_str(), error.what(),
                     command.Name.c_str());
        return 2;
    }
}

}  // namespace KornumCli
