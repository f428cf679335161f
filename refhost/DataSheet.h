// The reference host's data sheets: variables with a name, a type and
// their values, and the categorical marks the ANOVA factor list follows.
#pragma once

#include "host/IData.h"

#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace kalhost {

struct Variable {
    CString name;
    NmsEnum::VARIABLETYPE type = NmsEnum::VT_NUMERIC;
    std::vector<std::string> values; // as read, UTF-8
};

class DataError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class DataSheet final : public IDataSheet {
public:
    DataSheet() = default;
    explicit DataSheet(std::vector<Variable> variables, std::string source = {});

    // A CSV file with a header row of variable names. A column is a string
    // variable when its name ends in '$' or any value is not a number.
    // Throws DataError naming the file, line and column; nothing is kept of
    // a file that fails.
    static DataSheet LoadCsv(const std::filesystem::path& file);
    // The built-in sample: a designed experiment that needs no file.
    static DataSheet Sample();

    // Marks the named variables categorical (string variables always are).
    // Throws DataError for a name the sheet does not have.
    void MarkCategorical(const std::vector<std::string>& names);

    bool IsValid() override { return true; }
    int GetVariableCount() override { return static_cast<int>(m_variables.size()); }
    CString GetVariableName(int index, int nameForm) override;
    NmsEnum::VARIABLETYPE GetVariableType(int index) override;
    std::vector<int> GetCategoricalIndexes() override;

    const std::vector<Variable>& Variables() const { return m_variables; }
    std::size_t CaseCount() const { return m_variables.empty() ? 0 : m_variables.front().values.size(); }
    const std::string& Source() const { return m_source; }

private:
    std::vector<Variable> m_variables;
    std::set<int> m_categorical;
    std::string m_source;
};

// Whether `text` reads as a number (blank cells are missing values and
// count as numbers).
bool IsNumberText(const std::string& text);

} // namespace kalhost
