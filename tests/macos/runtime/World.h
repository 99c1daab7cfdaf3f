#pragma once

#include <map>
#include <mutex>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "Metadata.h"

extern "C" {
extern kinesta::objc::ClassObject mallocBlockClass, stackBlockClass, globalBlockClass;
}

/// What the parts of the runtime know together.
namespace kinesta::objc {

struct ClassInfo {
    std::unordered_map<Selector, MethodEntry> methods;
    std::vector<Protocol*> protocols;
};

struct Entry {
    ClassObject* type;  // null for what is no object: C objects and shared variables
    const char* kind;
    long count = 1;
    bool deallocating = false;
    bool dead = false;
};

struct World {
    std::recursive_mutex mutex;
    std::unordered_set<std::string> selectors;
    std::unordered_map<const void*, Entry> entries;
    std::unordered_set<const void*> constants;
    std::unordered_map<Object**, Object*> weakVariables;
    std::unordered_map<const void*, int> numbers;
    std::map<std::string, int> lastNumbers;
    std::vector<std::string> calls;
};

World& world();

using Lock = std::lock_guard<std::recursive_mutex>;

[[noreturn]] void fail(const std::string& message);

Selector intern(const char* name);

bool isFake(const void* code);

bool isConstant(const void* pointer);

/// The entry of something that lives; none for constants. Anything else is a fault of the code under test.
Entry* livingEntry(const void* pointer, const char* deed);

void* allocate(std::size_t size, ClassObject* type, const char* kind);

inline const char* className(const ClassObject* type) { return type->table->name; }

/// Null if neither the class nor those above it have it.
const MethodEntry* findInherited(const ClassObject* type, Selector selector);

template <typename Result, typename... Arguments>
Result send(Object* receiver, const char* name, Arguments... arguments) {
    const Selector selector = intern(name);
    const MethodEntry* method = findInherited(receiver->isa, selector);
    return reinterpret_cast<Result (*)(Object*, Selector, Arguments...)>(method->code)(receiver, selector,
                                                                                       arguments...);
}

}  // namespace kinesta::objc
