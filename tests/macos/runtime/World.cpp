#include "World.h"

#include <cstdio>
#include <cstdlib>

// What the linker gathers from all object files; absent where no file has any.
extern "C" __attribute__((weak)) const char __start_cfstring[], __stop_cfstring[], __start_fake_text[],
    __stop_fake_text[];

namespace kinesta::objc {

/// Never destroyed: objects may go after main has ended.
World& world() {
    static World& instance = *new World;
    return instance;
}

[[noreturn]] void fail(const std::string& message) {
    std::fprintf(stderr, "Objective-C: %s\n", message.c_str());
    std::abort();
}

Selector intern(const char* name) {
    const Lock lock(world().mutex);
    return world().selectors.insert(name).first->c_str();
}

bool isFake(const void* code) { return code >= __start_fake_text && code < __stop_fake_text; }

bool isConstant(const void* pointer) {
    return world().constants.contains(pointer) || (pointer >= __start_cfstring && pointer < __stop_cfstring) ||
           static_cast<const Object*>(pointer)->isa == &globalBlockClass;
}

Entry* livingEntry(const void* pointer, const char* deed) {
    const auto found = world().entries.find(pointer);
    if (found == world().entries.end()) {
        if (isConstant(pointer))
            return nullptr;
        fail(std::string(deed) + " of something that is no object");
    }
    if (found->second.dead)
        fail(std::string(deed) + " of a " + found->second.kind + " that is gone");
    return &found->second;
}

void* allocate(std::size_t size, ClassObject* type, const char* kind) {
    void* memory = std::calloc(1, size);
    const Lock lock(world().mutex);
    world().entries.insert_or_assign(memory, Entry{type, kind});
    return memory;
}

}  // namespace kinesta::objc
