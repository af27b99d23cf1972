#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/CatalogueReader.h"
#include "tool/catalogue/ReservedNames.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/checks/MessageChecks.h"
#include "tool/commands/Command.h"
#include "tool/commands/DiagnosticOptions.h"
#include "tool/generated/CallsHeader.h"
#include "tool/generated/GeneratedSources.h"
#include "tool/generated/MessageTable.h"
#include "tool/generated/OutputFiles.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Names.h"
#include "tool/text/Unicode.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// `msglib compile`: message text files go in, sources and tables come out. The names of outputs are
// checked first, then the catalogues. Only if there is no error, all outputs are made in memory and
// written together.

namespace zem::msglib::tool {

namespace {

using Signatures = std::vector<CallSignature>;

struct CompileOptions {
    std::vector<std::string> files;
    std::string output;
    std::string format = "elf";
    std::string encoding;
    std::vector<std::string> namespaces; ///< each as `catalogue=namespace`
    DiagnosticOptions diagnostics;
};

/// Returns whether a text is one or more names of C++ with "::" between them.
bool isNamespace(std::string_view text) {
    const std::size_t end = std::min(text.find("::"), text.size());
    return isIdentifier(text.substr(0, end)) && !isKeywordOfCpp(text.substr(0, end)) &&
           (end == text.size() || isNamespace(text.substr(end + 2)));
}

/// Returns the namespaces of typed calls that the command line sets, by the names of their
/// catalogues.
std::map<std::string, std::string> readNamespaces(const std::vector<std::string>& entries) {
    std::map<std::string, std::string> namespaces;
    for (const std::string& entry : entries) {
        const std::size_t equals = entry.find('=');
        if (equals == std::string::npos || !isNamespace(entry.substr(equals + 1))) {
            throw CannotRun("--namespace: write CATALOGUE=NAMESPACE instead of " + entry);
        }
        namespaces[entry.substr(0, equals)] = entry.substr(equals + 1);
    }
    return namespaces;
}

bool isPlain(const std::string& name) {
    return validUtf8Length(name) == name.size() &&
           std::none_of(name.begin(), name.end(), [](char byte) {
               return static_cast<unsigned char>(byte) < 0x20 || byte == '"' || byte == '\\' ||
                      byte == 0x7F;
           });
}

/// Returns the names of the outputs of all catalogues. Refuses catalogues whose outputs would have
/// the same names, and names that cannot be written into a source file.
std::vector<CatalogueName> namesOf(const CompileOptions& options) {
    auto namespaces = readNamespaces(options.namespaces);
    std::vector<CatalogueName> names;
    std::set<std::string> headers;
    std::set<std::string> registrations;
    for (const std::string& file : options.files) {
        CatalogueName name(file);
        if (!isPlain(name.file)) {
            throw CannotRun(file + ": a header cannot have the name of this file");
        }
        if (!headers.insert(name.stem).second || !headers.insert(name.stem + "Calls").second ||
            !registrations.insert(name.registration).second) {
            throw CannotRun(file + ": another catalogue has the name " + name.stem +
                            ", or one too similar for the function " + name.registration +
                            " or for a header");
        }
        if (const auto chosen = namespaces.extract(name.stem)) {
            name.calls = chosen.mapped();
        }
        names.push_back(std::move(name));
    }
    if (!namespaces.empty()) {
        throw CannotRun("--namespace: there is no catalogue " + namespaces.begin()->first);
    }
    return names;
}

/// Returns the header of typed calls. Refuses an outermost namespace that is also a symbolic name.
std::string callsText(const CatalogueName& name, const Signatures& signatures) {
    const std::string_view space = std::string_view(name.calls).substr(0, name.calls.find("::"));
    for (const CallSignature& signature : signatures) {
        if (signature.symbol == space) {
            throw CannotRun(name.file + ": the symbolic name " + std::string(space) +
                            " is also the namespace of the typed calls; choose another one with "
                            "--namespace " +
                            name.stem + "=NAMESPACE");
        }
    }
    return callsHeaderText(name, signatures);
}

OutputFiles outputsOf(const CompileOptions& options, const std::vector<CatalogueName>& names,
                      const std::vector<Catalogue>& catalogues,
                      const std::vector<Signatures>& signatures) {
    const bool isForElf = options.format == "elf";
    OutputFiles outputs(options.output);
    std::vector<const Catalogue*> all;
    for (std::size_t index = 0; index < catalogues.size(); ++index) {
        const Catalogue& catalogue = catalogues[index];
        const CatalogueName& name = names[index];
        const Tables embedded = isForElf ? compileTables({&catalogue}, shortBlock) : Tables();
        outputs.add(name.stem + ".h", headerText(name, catalogue));
        outputs.add(name.stem + "Calls.h", callsText(name, signatures[index]));
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
    const auto names = namesOf(options);
    Diagnostics diagnostics(options.diagnostics.policy());
    const auto catalogues = readCatalogues(options.files, options.encoding, diagnostics);
    checkIdentifiers(catalogues, diagnostics);
    checkMessages(catalogues, diagnostics);
    std::vector<Signatures> signatures;
    signatures.reserve(catalogues.size());
    for (const Catalogue& catalogue : catalogues) {
        signatures.push_back(readSignatures(catalogue, diagnostics));
    }
    const auto found = diagnostics.take();
    options.diagnostics.write(found);
    if (hasErrors(found)) {
        return ExitStatus::errors;
    }
    outputsOf(options, names, catalogues, signatures).write();
    return ExitStatus::success;
}

} // namespace

void addCompileCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<CompileOptions>();
    CLI::App& command = *program.add_subcommand(
        "compile", "Check catalogues and write the sources that embed them into a module");
    command.add_option("FILE", options->files, "Message text files (.mc)")->required();
    command.add_option("--output", options->output, "Folder to write to")
        ->required()
        ->type_name("DIR");
    command
        .add_option(
            "--format", options->format,
            "Where the tables are: elf (in the sources) or rc (in files of a resource script "
            "for Windows, messages.rc)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"elf", "rc"}));
    command
        .add_option("--encoding", options->encoding,
                    "Encoding of files that are neither UTF-8 nor UTF-16, as iconv names it")
        ->type_name("NAME");
    command
        .add_option("--namespace", options->namespaces,
                    "Namespace of a catalogue's typed calls, as in App=app::messages; the "
                    "default is the catalogue's name in upper camel case")
        ->type_name("CATALOGUE=NAMESPACE")
        ->allow_extra_args(false);
    options->diagnostics.addTo(command, "--diagnostics");
    command.footer(
        "Examples:\n"
        "  msglib compile App.mc --output .              writes App.h, AppCalls.h and App.cpp\n"
        "  msglib compile A.mc B.mc --output gen --deny warnings\n"
        "  msglib compile Alt.mc --output . --encoding CP1252");
    command.callback([options, &chosen] { chosen = [options] { return compile(*options); }; });
}

} // namespace zem::msglib::tool
