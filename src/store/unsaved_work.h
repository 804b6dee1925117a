#pragma once

#include <string_view>

namespace pinmora {

/// Keeps the work that is not in the store file; told by the library of what it does to that file.
/// States are the names that saved libraries bear.
class UnsavedWork {
public:
    virtual ~UnsavedWork() = default;

    /// The store file is about to become a saved library of this state: if it does, all work up to
    /// now is in it.
    virtual void willSave(std::string_view state) = 0;
    virtual void didSave(std::string_view state) = 0;
    /// The store file is about to lose the library, which goes on in memory. False when the file is
    /// to stay as it is, because the library cannot be kept elsewhere.
    virtual bool willEmptyStore() = 0;
    /// It has lost it, or the file cannot be written.
    virtual void didEmptyStore() {}
};

} // namespace pinmora
