#include "CannotRun.h"
#include "CatalogueReader.h"
#include "CatalogueRules.h"
#include "Command.h"
#include "DiagnosticOptions.h"
#include "GeneratedSources.h"
#include "MessageChecks.h"
#include "MessageTable.h"
#include "OutputFiles.h"
#include "Unicode.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace zem::msglib::tool {

namespace {

struct CompileOptions {
    std::vector<std::string> files;
    std::string output;
    std::string format = "elf";
    std::string encoding;
    DiagnosticOptions diagnostics;
};

/// Refuses catalogues whose generated files or functions would have one name, and names that
/// cannot stand in a source.
std::vector<CatalogueName> namesOf(const std::vector<std::string>& files) {
    std::vector<CatalogueName> names;
    std::set<std::string> stems;
    std::set<std::string> registrations;
    for (const std::string& file : files) {
        const CatalogueName name(file);
        const bool isPlain = validUtf8Length(name.file) == name.file.size() &&
                             std::none_of(name.file.begin(), name.file.end(), [](char byte) {
                                 return static_cast<unsigned char>(byte) < 0x20 || byte == '"' ||
                                        byte == '\\' || byte == 0x7F;
                             });
        if (!isPlain) {
            throw CannotRun(file + ": a header cannot have the name of this file");
        }
        if (!stems.insert(name.stem).second || !registrations.insert(name.registration).second) {
            throw CannotRun(file + ": another catalogue has the name " + name.stem +
                            ", or one too similar for the function " + name.registration);
        }
        names.push_back(name);
    }
    return names;
}

OutputFiles outputsOf(const CompileOptions& options, const std::vector<CatalogueName>& names,
                      const std::vector<Catalogue>& catalogues) {
    const bool isForElf = options.format == "elf";
    OutputFiles outputs(options.output);
    std::vector<const Catalogue*> all;
    for (std::size_t index = 0; index < catalogues.size(); ++index) {
        const Catalogue& catalogue = catalogues[index];
        const CatalogueName& name = names[index];
        const Tables embedded = isForElf ? compileTables({&catalogue}, shortBlock) : Tables();
        outputs.add(name.stem + ".h", headerText(name, catalogue));
        outputs.add(name.stem + ".cpp", sourceText(name, catalogue, embedded));
        all.push_back(&catalogue);
    }
    if (!isForElf) {
        const Tables tables = compileTables(all, longestBlock);
        for (const auto& [language, table] : tables) {
            outputs.add(tableFileName(language), table);
        }
        outputs.add(resourceFileName, resourceText(tables));
    }
    return outputs;
}

ExitStatus compile(const CompileOptions& options) {
    const auto names = namesOf(options.files);
    Diagnostics diagnostics(options.diagnostics.policy());
    const auto catalogues = readCatalogues(options.files, options.encoding, diagnostics);
    checkIdentifiers(catalogues, diagnostics);
    checkMessages(catalogues, diagnostics);
    const auto found = diagnostics.take();
    options.diagnostics.write(found);
    if (hasErrors(found)) {
        return ExitStatus::errors;
    }
    outputsOf(options, names, catalogues).write();
    return ExitStatus::success;
}

} // namespace

void addCompileCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<CompileOptions>();
    CLI::App& command = *program.add_subcommand(
        "compile", "Check catalogues and write what embeds them into a module");
    command.add_option("FILE", options->files, "Message text files (.mc)")->required();
    command.add_option("--output", options->output, "Folder to write to")
        ->required()
        ->type_name("DIR");
    command
        .add_option(
            "--format", options->format,
            "What carries the tables: elf (the sources themselves) or rc (a resource script "
            "for Windows, messages.rc)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"elf", "rc"}));
    command
        .add_option("--encoding", options->encoding,
                    "Encoding of files that are neither UTF-8 nor UTF-16, as iconv names it")
        ->type_name("NAME");
    options->diagnostics.addTo(command, "--diagnostics");
    command.footer("Examples:\n"
                   "  msglib compile App.mc --output .              writes App.h and App.cpp\n"
                   "  msglib compile A.mc B.mc --output gen --deny warnings\n"
                   "  msglib compile Alt.mc --output . --encoding CP1252");
    command.callback([options, &chosen] { chosen = [options] { return compile(*options); }; });
}

} // namespace zem::msglib::tool
