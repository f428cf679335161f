// Reads arbitrary bytes as a CSV data sheet: a file may be refused with its
// line and column, never crash; what is read has a variable per header name.
#include "refhost/DataSheet.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    try {
        kalhost::DataSheet sheet = kalhost::DataSheet::LoadCsv(in, "fuzz.csv");
        if (sheet.GetVariableCount() == 0)
            std::abort(); // a sheet is refused, or it has variables
        for (int i = 0; i < sheet.GetVariableCount(); ++i)
            if (sheet.GetVariableName(i, 1).IsEmpty())
                std::abort();
    } catch (const kalhost::DataError&) {
    }
    return 0;
}
