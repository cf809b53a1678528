// What the tests read in the documents: quotations, links and pictures of a Markdown file.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lauwerkrans::markdown {

/// The quotations (lines that start with ">"), each as one line of text.
[[nodiscard]] std::vector<std::string> Aanhalingen(const std::string& tekst);

/// The targets of links and pictures, [text](target), as they are written.
[[nodiscard]] std::vector<std::string> Doelen(const std::string& tekst);

/// The links and pictures of a file that lead nowhere: a file that is not there. Addresses on other
/// computers are passed over.
[[nodiscard]] std::vector<std::string> DodeDoelen(const std::filesystem::path& bestand);

/// All Markdown files below a folder.
[[nodiscard]] std::vector<std::filesystem::path> Bestanden(const std::filesystem::path& map);

} // namespace lauwerkrans::markdown
