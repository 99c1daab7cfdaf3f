#include <cstring>

#include "World.h"

using namespace kinesta::objc;

extern "C" {

Object* objc_retain(Object* object);
void objc_release(Object* object);

const void* _Block_copy(const void* pointer) {
    const auto block = static_cast<const Block*>(pointer);
    if (!block || (block->flags & blockIsGlobal))
        return block;
    if (block->isa == &mallocBlockClass)
        return objc_retain(reinterpret_cast<Object*>(const_cast<Block*>(block)));
    const auto copy = static_cast<Block*>(allocate(block->descriptor->size, &mallocBlockClass, "block"));
    std::memcpy(static_cast<void*>(copy), block, block->descriptor->size);
    copy->isa = &mallocBlockClass;
    if (copy->flags & blockHasHelpers)
        copy->descriptor->copy(copy, block);
    return copy;
}

enum : int { fieldIsObject = 3, fieldIsBlock = 7, fieldIsShared = 8, fieldIsWeak = 16, fieldOfShared = 128 };

void _Block_object_assign(void* to, const void* value, int flags) {
    if (flags & fieldOfShared) {
        *static_cast<const void**>(to) = value;
    } else if (flags & fieldIsShared) {
        const auto variable = static_cast<const SharedVariable*>(value)->forwarding;
        if (variable->flags & sharedIsOnHeap) {
            ++livingEntry(variable, "retain")->count;
            *static_cast<const void**>(to) = variable;
            return;
        }
        const auto copy = static_cast<SharedVariable*>(allocate(variable->size, nullptr, "__block variable"));
        std::memcpy(static_cast<void*>(copy), variable, variable->size);
        copy->flags |= sharedIsOnHeap;
        copy->forwarding = variable->forwarding = copy;
        if (variable->flags & blockHasHelpers)
            variable->keep(copy, variable);
        livingEntry(copy, "retain")->count = 2;  // the block's and that of the place on the stack
        *static_cast<const void**>(to) = copy;
    } else {
        *static_cast<const void**>(to) =
            flags == fieldIsBlock ? _Block_copy(value) : objc_retain(static_cast<Object*>(const_cast<void*>(value)));
    }
}

static void releaseShared(SharedVariable* variable) {
    Entry* entry = livingEntry(variable, "release");
    if (--entry->count > 0)
        return;
    if (variable->flags & blockHasHelpers)
        variable->destroy(variable);
    livingEntry(variable, "release")->dead = true;
}

void _Block_object_dispose(const void* value, int flags) {
    if (flags & fieldOfShared)
        return;
    if (!(flags & fieldIsShared)) {
        objc_release(static_cast<Object*>(const_cast<void*>(value)));
    } else if (const auto variable = static_cast<const SharedVariable*>(value)->forwarding;
               variable->flags & sharedIsOnHeap) {
        releaseShared(variable);
    }
}

}  // extern "C"
