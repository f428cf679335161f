// IData: the host's data service, registered as module "KalData", and the
// data sheet it serves.
#pragma once

#include "host/IModule.h"
#include "platform/CString.h"

#include <vector>

namespace NmsEnum {

enum VARIABLETYPE : int {
    VT_UNKNOWN = 0,
    VT_NUMERIC = 1,
    VT_STRING = 3,
};

// Which variables a source list offers.
enum ADD_VARIABLE_TYPE : int {
    ADD_ALL_VARIABLES = 0,
    ADD_NUMERIC_VARIABLES = 1,
    ADD_STRING_VARIABLES = 2,
};

} // namespace NmsEnum

// Data kinds by type code: none, ordinary data, a matrix (any code above 1).
enum KalDataKind : int {
    KAL_DATA_NONE = 0,
    KAL_DATA_ORDINARY = 1,
    KAL_DATA_MATRIX = 2,
};

class IDataSheet {
public:
    virtual bool IsValid() = 0;
    virtual int GetVariableCount() = 0;
    // nameForm 1 is the name as written in commands; 0 may add a label.
    virtual CString GetVariableName(int index, int nameForm) = 0;
    virtual NmsEnum::VARIABLETYPE GetVariableType(int index) = 0;
    // Indexes of the variables the sheet treats as categorical.
    virtual std::vector<int> GetCategoricalIndexes() = 0;
    // The number of cases (rows of data), or -1 where the sheet does not
    // tell; dialogs that need cases judge entries against it.
    virtual int GetCaseCount() { return -1; }

protected:
    ~IDataSheet() = default;
};

class IData : public IModule {
public:
    virtual IDataSheet* GetActiveDataSheet() = 0;
    virtual int GetDataTypeCode() = 0;

protected:
    ~IData() = default;
};
