#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/CatalogueReader.h"
#include "tool/catalogue/SourceReader.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/checks/MessageChecks.h"
#include "tool/checks/PatternChecks.h"
#include "tool/commands/Command.h"
#include "tool/commands/DiagnosticOptions.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Unicode.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <utility>
#include <vector>

// `msglib check`: message text files, files with a pattern in each line and single patterns go in,
// diagnostics come out. All files are checked as catalogues of one module. Files and patterns are
// numbered in this order, by which diagnostics are sorted.

namespace zem::msglib::tool {

namespace {

struct CheckOptions {
    std::vector<std::string> files;
    std::vector<std::string> patterns;
    std::vector<std::string> lines;
    std::string encoding;
    DiagnosticOptions diagnostics;
};

/// Checks all inputs of one run, and owns them, since diagnostics refer to them.
class CheckRun {
public:
    explicit CheckRun(const CheckOptions& options)
        : options_(options),
          diagnostics_(options.diagnostics.policy()) {}

    ExitStatus run() {
        catalogues_ = readCatalogues(options_.files, options_.encoding, diagnostics_);
        checkIdentifiers(catalogues_, diagnostics_);
        checkMessages(catalogues_, diagnostics_);
        for (const Catalogue& catalogue : catalogues_) {
            readSignatures(catalogue, diagnostics_);
        }
        for (const std::string& path : options_.lines) {
            checkLines(path);
        }
        for (const std::string& pattern : options_.patterns) {
            checkOne(pattern);
        }
        const auto found = diagnostics_.take();
        options_.diagnostics.write(found);
        return hasErrors(found) ? ExitStatus::errors : ExitStatus::success;
    }

private:
    std::size_t nextNumber() const { return catalogues_.size() + sources_.size(); }

    void checkLines(const std::string& path) {
        ReadSource source = readSource(path, options_.encoding, nextNumber(), diagnostics_);
        const SourceFile& file = *source.file;
        sources_.push_back(std::move(source.file));
        for (std::size_t begin = 0; source.isWhole && begin < file.text().size();) {
            const std::size_t length = file.lineAt(begin).size();
            checkPattern(PatternTree({&file, begin, length}), diagnostics_);
            begin += length + 1;
        }
    }

    void checkOne(const std::string& pattern) {
        const std::size_t valid = validUtf8Length(pattern);
        sources_.push_back(
            std::make_unique<const SourceFile>("pattern", pattern.substr(0, valid), nextNumber()));
        const SourceFile& file = *sources_.back();
        if (valid < pattern.size()) {
            diagnostics_.report(rules::fileEncoding, {&file, valid, 0},
                                "after this, the pattern is not UTF-8");
            return;
        }
        checkPattern(PatternTree({&file, 0, valid}), diagnostics_);
    }

    const CheckOptions& options_;
    Diagnostics diagnostics_;
    std::vector<Catalogue> catalogues_;
    std::vector<std::unique_ptr<const SourceFile>> sources_;
};

ExitStatus check(const CheckOptions& options) {
    if (options.files.empty() && options.patterns.empty() && options.lines.empty()) {
        throw CannotRun("there is nothing to check: name a file, a --pattern or --lines");
    }
    return CheckRun(options).run();
}

} // namespace

void addCheckCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<CheckOptions>();
    CLI::App& command = *program.add_subcommand("check", "Check catalogues and patterns");
    command.add_option("FILE", options->files, "Message text files (.mc) of one module");
    command.add_option("--pattern", options->patterns, "A message pattern to check")
        ->type_name("TEXT")
        ->allow_extra_args(false);
    command
        .add_option("--lines", options->lines,
                    "File with a message pattern in each line; - for standard input")
        ->type_name("FILE")
        ->allow_extra_args(false);
    command
        .add_option("--encoding", options->encoding,
                    "Encoding of files that are neither UTF-8 nor UTF-16, as iconv names it")
        ->type_name("NAME");
    options->diagnostics.addTo(command, "--format");
    command.footer("Examples:\n"
                   "  msglib check App.mc Errors.mc\n"
                   "  msglib check --pattern \"{0,choice,0#none|1#one|1<{0}}\"\n"
                   "  grep -oh '{[0-9].*}' *.cpp | msglib check --lines -\n"
                   "  msglib check App.mc --deny warnings --allow foreign-insert\n"
                   "  msglib check App.mc --format sarif > result.sarif");
    command.callback([options, &chosen] { chosen = [options] { return check(*options); }; });
}

} // namespace zem::msglib::tool
