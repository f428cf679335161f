// The reference host's data sheets: variables with a name and a type, the
// number of cases, and the categorical marks the ANOVA factor list follows.
// Cell values are read to tell numeric from string variables and then
// dropped: the module asks for nothing else.
#pragma once

#include "host/IData.h"

#include <filesystem>
#include <istream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kalhost {

struct Variable {
    CString name;
    NmsEnum::VARIABLETYPE type = NmsEnum::VT_NUMERIC;
};

class DataError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class DataSheet final : public IDataSheet {
public:
    DataSheet() = default;
    DataSheet(std::vector<Variable> variables, std::size_t cases, std::string source);

    // A CSV file with a header row of variable names. A column is a string
    // variable when its name ends in '$' or any value is not a number.
    // Throws DataError naming the file, line and column; nothing is kept of
    // a file that fails.
    static DataSheet LoadCsv(const std::filesystem::path& file);
    static DataSheet LoadCsv(std::istream& in, const std::string& name);
    // The built-in sample, a designed experiment that needs no file: three
    // doses (A) crossed with three soils (B, a string factor), 30 plots
    // each; responses Y, Y2 and the harvests T1-T3, covariates X and X2,
    // a weight W. A is marked categorical.
    static DataSheet Sample();
    // The sample with its values, as a CSV file would hold it; LoadCsv of
    // this text gives Sample() (before the categorical mark).
    static std::string SampleCsv();

    // Marks the named variables categorical (string variables always are).
    // Throws DataError for a name the sheet does not have.
    void MarkCategorical(const std::vector<std::string>& names);

    bool IsValid() override { return true; }
    int GetVariableCount() override { return static_cast<int>(m_variables.size()); }
    CString GetVariableName(int index, int nameForm) override;
    NmsEnum::VARIABLETYPE GetVariableType(int index) override;
    std::vector<int> GetCategoricalIndexes() override;
    int GetCaseCount() override;

    const std::vector<Variable>& Variables() const { return m_variables; }
    std::size_t CaseCount() const { return m_cases; }
    const std::string& Source() const { return m_source; }

private:
    std::vector<Variable> m_variables;
    std::set<int> m_categorical;
    std::size_t m_cases = 0;
    std::string m_source;
};

// Whether `text` reads as a number (blank cells are missing values and
// count as numbers).
bool IsNumberText(std::string_view text);

// How much of a file the CSV reader reads at a time (a longer line makes it
// read more).
inline constexpr std::size_t kCsvReadBlock = std::size_t{1} << 20;
// The longest line and the longest value a data file may hold: far beyond
// any sheet of a million variables, short of what would exhaust memory.
inline constexpr std::size_t kCsvMaxLine = std::size_t{64} << 20;
inline constexpr std::size_t kCsvMaxField = std::size_t{1} << 20;

} // namespace kalhost
