// The life of objects: reference counting, weak variables, and the properties that keep them.
#include <cstring>
#include <utility>

#include "TestRuntime.h"
#include "World.h"

using namespace kinesta::objc;

namespace {

thread_local std::vector<Object*> autoreleased;

void construct(Object* object, const ClassObject* type) {
    if (type->superclass)
        construct(object, type->superclass);
    const auto make = type->info->methods.find(intern(".cxx_construct"));
    if (make != type->info->methods.end())
        reinterpret_cast<void (*)(Object*, Selector)>(make->second.code)(object, make->first);
}

void forgetWeakly(const Object* object) {
    for (auto slot = world().weakVariables.begin(); slot != world().weakVariables.end();) {
        if (slot->second != object) {
            ++slot;
            continue;
        }
        *slot->first = nullptr;
        slot = world().weakVariables.erase(slot);
    }
}

}  // namespace

extern "C" {

Object* objcTestMake(ClassObject* type) {
    auto object = static_cast<Object*>(allocate(type->table->instanceSize, type, className(type)));
    object->isa = type;
    construct(object, type);
    return object;
}

/// Called by the root class at the end of -dealloc.
void objcTestDispose(Object* object) {
    for (const ClassObject* type = object->isa; type; type = type->superclass) {
        const auto destroy = type->info->methods.find(intern(".cxx_destruct"));
        if (destroy != type->info->methods.end())
            reinterpret_cast<void (*)(Object*, Selector)>(destroy->second.code)(object, destroy->first);
    }
}

// --- Reference counting

const void* _Block_copy(const void* block);

Object* objc_retain(Object* object) {
    if (!object)
        return nullptr;
    if (object->isa == &stackBlockClass)
        return static_cast<Object*>(const_cast<void*>(_Block_copy(object)));
    const Lock lock(world().mutex);
    if (Entry* entry = livingEntry(object, "retain"))
        ++entry->count;
    return object;
}

void objc_release(Object* object) {
    if (!object)
        return;
    std::unique_lock lock(world().mutex);
    Entry* const entry = livingEntry(object, "release");
    if (!entry || --entry->count > 0 || entry->deallocating)
        return;
    entry->deallocating = true;
    forgetWeakly(object);
    lock.unlock();  // -dealloc may wait for another thread
    if (object->isa == &mallocBlockClass) {
        const auto block = reinterpret_cast<Block*>(object);
        if (block->flags & blockHasHelpers)
            block->descriptor->dispose(block);
    } else if (entry->type) {
        send<void>(object, "dealloc");
    }
    lock.lock();
    if (entry->count > 0)
        fail(std::string(entry->kind) + " was retained in its dealloc and not released");
    entry->dead = true;
}

Object* objc_autorelease(Object* object) {
    if (object)
        autoreleased.push_back(object);
    return object;
}

void* objc_autoreleasePoolPush() { return reinterpret_cast<void*>(autoreleased.size()); }

void objc_autoreleasePoolPop(void* mark) {
    while (autoreleased.size() > reinterpret_cast<std::size_t>(mark)) {
        Object* object = autoreleased.back();
        autoreleased.pop_back();
        objc_release(object);
    }
}

Object* objc_retainAutorelease(Object* object) { return objc_autorelease(objc_retain(object)); }
Object* objc_autoreleaseReturnValue(Object* object) { return objc_autorelease(object); }
Object* objc_retainAutoreleaseReturnValue(Object* object) { return objc_retainAutorelease(object); }
Object* objc_retainAutoreleasedReturnValue(Object* object) { return objc_retain(object); }
Object* objc_unsafeClaimAutoreleasedReturnValue(Object* object) { return object; }
Object* objc_retainBlock(Object* block) { return static_cast<Object*>(const_cast<void*>(_Block_copy(block))); }

void objc_storeStrong(Object** variable, Object* object) {
    Object* const kept = objc_retain(object);
    objc_release(std::exchange(*variable, kept));
}

Object* objc_alloc(ClassObject* type) {
    return type ? send<Object*>(reinterpret_cast<Object*>(type), "alloc") : nullptr;
}
Object* objc_alloc_init(ClassObject* type) { return type ? send<Object*>(objc_alloc(type), "init") : nullptr; }

// --- Weak variables

Object* objc_storeWeak(Object** variable, Object* object) {
    const Lock lock(world().mutex);
    world().weakVariables.erase(variable);
    *variable = object;
    if (!object)
        return nullptr;
    if (Entry* entry = livingEntry(object, "weak reference")) {
        if (entry->deallocating)
            fail(std::string("weak reference to a ") + entry->kind + " in its dealloc");
        world().weakVariables[variable] = object;
    }
    return object;
}

Object* objc_initWeak(Object** variable, Object* object) { return objc_storeWeak(variable, object); }

void objc_destroyWeak(Object** variable) {
    const Lock lock(world().mutex);
    world().weakVariables.erase(variable);
}

Object* objc_loadWeakRetained(Object** variable) {
    const Lock lock(world().mutex);
    return objc_retain(*variable);
}

void objc_copyWeak(Object** to, Object** from) {
    const Lock lock(world().mutex);
    objc_storeWeak(to, *from);
}

void objc_moveWeak(Object** to, Object** from) {
    objc_copyWeak(to, from);
    objc_destroyWeak(from);
}

// --- Properties

Object* objc_getProperty(Object* object, Selector, std::ptrdiff_t offset, bool atomic) {
    Object* const value = *reinterpret_cast<Object**>(reinterpret_cast<char*>(object) + offset);
    return atomic ? objc_retainAutorelease(value) : value;
}

static void setProperty(Object* object, Object* value, std::ptrdiff_t offset, bool copy) {
    const auto variable = reinterpret_cast<Object**>(reinterpret_cast<char*>(object) + offset);
    Object* const kept = !value ? nullptr
                         : copy ? send<Object*, void*>(value, "copyWithZone:", nullptr)
                                : objc_retain(value);
    objc_release(std::exchange(*variable, kept));
}

void objc_setProperty_atomic(Object* o, Selector, Object* v, std::ptrdiff_t offset) {
    setProperty(o, v, offset, false);
}
void objc_setProperty_atomic_copy(Object* o, Selector, Object* v, std::ptrdiff_t offset) {
    setProperty(o, v, offset, true);
}
void objc_setProperty_nonatomic_copy(Object* o, Selector, Object* v, std::ptrdiff_t offset) {
    setProperty(o, v, offset, true);
}
void objc_copyStruct(void* to, const void* from, std::size_t size, bool, bool) { std::memmove(to, from, size); }
void objc_enumerationMutation(Object* object) { fail(describe(object) + " was changed while it was enumerated"); }
static std::recursive_mutex synchronized;  // one for all objects: stricter than the platform's

int objc_sync_enter(Object*) { return synchronized.lock(), 0; }
int objc_sync_exit(Object*) { return synchronized.unlock(), 0; }

// --- C objects, which may be objects as well

const void* CFRetain(const void* object) {
    if (!object)
        fail("CFRetain of null");
    return objc_retain(static_cast<Object*>(const_cast<void*>(object)));
}
void CFRelease(const void* object) {
    if (!object)
        fail("CFRelease of null");
    objc_release(static_cast<Object*>(const_cast<void*>(object)));
}

}  // extern "C"
