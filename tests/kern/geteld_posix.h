// What the program asks of the file system, counted: kern_tests has calls of its own in front of
// the system's, so that the program itself counts nothing.
#pragma once

#include <map>
#include <string>

namespace lauwerkrans::proef {

/// Counts, as long as it lives, what is asked about the files below a folder. Keys are paths
/// relative to the folder ("" for the folder itself), values are numbers of calls. One at a time.
class Telling {
public:
    explicit Telling(std::string map);
    Telling(const Telling&) = delete;
    Telling(Telling&&) = delete;
    Telling& operator=(const Telling&) = delete;
    Telling& operator=(Telling&&) = delete;
    ~Telling();

    using Aantallen = std::map<std::string, int>;
    Aantallen geopend;   // files that were opened, or tried to be
    Aantallen opgesomd;  // folders whose names were listed
    Aantallen opgezocht; // files and folders that were asked for without being opened

    /// Counts a call that names a path.
    void tel(Aantallen Telling::*soort, const char* pad);

private:
    std::string map_;
};

} // namespace lauwerkrans::proef
