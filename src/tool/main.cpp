#include "GeneratedSources.h"
#include "McFile.h"
#include "MessageTableFile.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using namespace zem::msglib::tool;
namespace fs = std::filesystem;

void writeFile(const fs::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes << std::flush;
    if (!out) {
        throw std::runtime_error(path.string() + ": cannot be written");
    }
}

/// Checks a message text file and writes the copy for the message compiler, which needs CR LF and
/// no byte order mark.
void prepareCatalogue(const std::string& source, const std::string& copy) {
    const auto lines = readLines(source);
    parseMcFile(source, lines);
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    writeFile(copy, bytes);
}

/// Returns what the table of one language must hold.
MessageTable expectedTable(const McFile& file, std::uint32_t language) {
    MessageTable table;
    for (const McText& text : file.texts) {
        if (text.language == language) {
            table[text.id] = text.text;
        }
    }
    return table;
}

/// Writes `<Name>.bin`, `<Name>.h` and `<Name>.cpp` from the tables that the message compiler has
/// made.
void generateSources(const std::string& source, const fs::path& compiled, const fs::path& output) {
    const McFile file = parseMcFile(source, readLines(source));
    const std::string name = fs::path(source).stem().string();
    const fs::path tablesPath = fs::absolute(output / (name + ".bin"));
    std::string tables;
    std::vector<TablePlace> places;
    for (const auto& [language, bin] : file.bins) {
        const fs::path path = compiled / (bin + ".bin");
        const MessageTable table = readTable(path.string());
        if (table != expectedTable(file, language)) {
            throw std::runtime_error(path.string() +
                                     ": the message compiler has not kept the texts of " + source);
        }
        const std::string bytes = tableBytes(table);
        places.push_back({language, tables.size(), bytes.size()});
        tables += bytes;
    }
    writeFile(tablesPath, tables);
    writeFile(output / (name + ".h"), headerText(name, file));
    writeFile(output / (name + ".cpp"), sourceText(name, file, tablesPath.string(), places));
}

/// Writes a resource script and its tables, which hold the messages of all `sources`. Their
/// compiled tables lie beside them.
void generateResource(const fs::path& script, const std::vector<std::string>& sources) {
    std::map<std::uint32_t, MessageTable> tables;
    for (const std::string& source : sources) {
        for (const auto& [language, bin] : parseMcFile(source, readLines(source)).bins) {
            const fs::path compiled = fs::path(source).replace_filename(bin + ".bin");
            tables[language].merge(readTable(compiled.string()));
        }
    }
    std::map<std::uint32_t, std::string> paths;
    for (const auto& [language, table] : tables) {
        const fs::path path = fs::absolute(script).replace_extension(std::to_string(language));
        writeFile(path, tableBytes(table));
        paths[language] = path.generic_string();
    }
    writeFile(script, resourceText(paths));
}

int run(int argc, const char* const* argv) {
    CLI::App app("Makes message tables ready to be embedded in a module");
    app.require_subcommand(1);
    std::string source;
    std::string copy;
    std::string compiled;
    std::string output;

    auto* prepareCommand = app.add_subcommand("prepare", "Check a message text file");
    prepareCommand->add_option("file", source, "message text file (.mc, UTF-8)")->required();
    prepareCommand->add_option("copy", copy, "copy to write for the message compiler")->required();
    prepareCommand->callback([&] { prepareCatalogue(source, copy); });

    auto* generateCommand = app.add_subcommand("generate", "Write the sources that embed tables");
    generateCommand->add_option("file", source, "the same message text file")->required();
    generateCommand->add_option("compiled", compiled, "folder of the compiled tables")->required();
    generateCommand->add_option("output", output, "folder for the sources")->required();
    generateCommand->callback([&] { generateSources(source, compiled, output); });

    std::string script;
    std::vector<std::string> sources;
    auto* resourceCommand = app.add_subcommand("resource", "Write a resource script for Windows");
    resourceCommand->add_option("script", script, "resource script to write")->required();
    resourceCommand->add_option("files", sources, "message text files, each beside its tables")
        ->required();
    resourceCommand->callback([&] { generateResource(script, sources); });

    try {
        app.parse(argc, argv);
        return 0;
    } catch (const CLI::Error& error) {
        return app.exit(error);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
