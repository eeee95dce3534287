#include "data/registry_value.h"

#include "common/application.h"

namespace qs {

std::wstring RegistryValue(Application& app, std::int16_t& action, std::wstring& key, std::wstring& value) {
    // A failure of the registry is not the program's concern: a missing
    // value reads as "", and a write or delete that fails is not noticed.
    std::wstring result;
    try {
        switch (action) {
            case RegistryWrite:
                app.sys.RegWrite(key, value);
                break;
            case RegistryRead:
                result = app.sys.RegRead(key);
                break;
            case RegistryDelete:
                app.sys.RegDelete(key);
                break;
            default:
                break;
        }
    } catch (const std::exception&) {
        result.clear();
    }
    return result;
}

}  // namespace qs
