#include "TestRuntime.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "ArgumentReader.h"
#include "Metadata.h"

// Tables that the linker gathers from all object files; absent where no file has any.
#define SECTION(type, name)                                 \
    extern "C" __attribute__((weak)) type __start_##name[]; \
    extern "C" __attribute__((weak)) type __stop_##name[];
SECTION(kinesta::objc::ClassObject*, objc_classlist)
SECTION(kinesta::objc::Category*, objc_catlist)
SECTION(kinesta::objc::Selector, objc_selrefs)
SECTION(kinesta::objc::Protocol*, objc_protolist)
SECTION(const char, cfstring)
SECTION(const char, fake_text)

extern "C" {
void* _objc_empty_cache = nullptr;
void objcTestNilMethod();
extern kinesta::objc::ClassObject mallocBlockClass, stackBlockClass, globalBlockClass;
}

namespace kinesta::objc {

struct ClassInfo {
    std::unordered_map<Selector, MethodEntry> methods;
    std::vector<Protocol*> protocols;
};

namespace {

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

/// Never destroyed: objects may go after main has ended.
World& world() {
    static World& instance = *new World;
    return instance;
}

using Lock = std::lock_guard<std::recursive_mutex>;

thread_local std::vector<Object*> autoreleased;

[[noreturn]] void fail(const std::string& message) {
    std::fprintf(stderr, "Objective-C: %s\n", message.c_str());
    std::abort();
}

Selector intern(const char* name) {
    const Lock lock(world().mutex);
    return world().selectors.insert(name).first->c_str();
}

bool isIn(const void* pointer, const char* begin, const char* end) { return pointer >= begin && pointer < end; }

bool isConstant(const void* pointer) {
    return world().constants.contains(pointer) || isIn(pointer, __start_cfstring, __stop_cfstring) ||
           static_cast<const Object*>(pointer)->isa == &globalBlockClass;
}

const char* className(const ClassObject* type) { return type->table->name; }

/// The entry of something that lives; none for constants. Anything else is a fault of the code under test.
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

// --- Classes ---------------------------------------------------------------------------------------------------------

void addMethods(ClassObject* type, const List<MethodEntry>* methods) {
    if (!methods)
        return;
    for (MethodEntry method : *methods) {
        method.name = intern(method.name);
        if (std::string_view(method.name) == "load" || std::string_view(method.name) == "initialize")
            fail(std::string(className(type)) + " has +load or +initialize, which these tests do not run");
        type->info->methods.insert_or_assign(method.name, method);
    }
}

void addProtocols(ClassObject* type, const ProtocolList* list) {
    for (std::int64_t i = 0; list && i < list->count; ++i)
        type->info->protocols.push_back(list->entries[i]);
}

/// The variables of a class begin where those of its superclass end, which the compiler may not have known.
void makeRoomForSuperclass(ClassObject* type) {
    ClassTable& table = *type->table;
    const std::uint32_t superSize = type->superclass ? type->superclass->table->instanceSize : 0;
    if (table.instanceStart >= superSize)
        return;
    const std::uint32_t shift = (superSize - table.instanceStart + 15) / 16 * 16;
    if (table.variables) {
        for (Variable& variable : *table.variables)
            if (variable.offset)
                *variable.offset += shift;
    }
    table.instanceStart += shift;
    table.instanceSize += shift;
}

void registerClass(ClassObject* type) {
    if (type->info)
        return;
    if (type->superclass)
        registerClass(type->superclass);
    makeRoomForSuperclass(type);
    for (ClassObject* each : {type, type->isa}) {
        each->info = new ClassInfo;
        addMethods(each, each->table->methods);
        world().constants.insert(each);
    }
    addProtocols(type, type->table->protocols);
}

__attribute__((constructor(101))) void registerProgram() {
    for (ClassObject** type = __start_objc_classlist; type < __stop_objc_classlist; ++type)
        registerClass(*type);
    for (Category** category = __start_objc_catlist; category < __stop_objc_catlist; ++category) {
        addMethods((*category)->target, (*category)->instanceMethods);
        addMethods((*category)->target->isa, (*category)->classMethods);
        addProtocols((*category)->target, (*category)->protocols);
    }
    for (Selector* selector = __start_objc_selrefs; selector < __stop_objc_selrefs; ++selector)
        *selector = intern(*selector);
    for (Protocol** protocol = __start_objc_protolist; protocol < __stop_objc_protolist; ++protocol)
        world().constants.insert(*protocol);
}

const MethodEntry* findInherited(const ClassObject* type, Selector selector) {
    for (; type; type = type->superclass)
        if (const auto found = type->info->methods.find(selector); found != type->info->methods.end())
            return &found->second;
    return nullptr;
}

template <typename Result, typename... Arguments>
Result send(Object* receiver, const char* name, Arguments... arguments) {
    const Selector selector = intern(name);
    const MethodEntry* method = findInherited(receiver->isa, selector);
    return reinterpret_cast<Result (*)(Object*, Selector, Arguments...)>(method->code)(receiver, selector,
                                                                                       arguments...);
}

// --- Recording -------------------------------------------------------------------------------------------------------

void recordMessage(const CallFrame& frame, Object* receiver, const MethodEntry& method, std::size_t firstInteger) {
    const char* types = method.types;
    const bool hasResult = takeType(types) != "v";
    takeType(types);  // self
    takeType(types);  // _cmd
    std::string line = describe(receiver) + " ";
    if (!*types) {
        if (!hasResult)
            world().calls.push_back(line + method.name);
        return;
    }
    ArgumentReader arguments(frame, firstInteger);
    for (const char* letter = method.name; *letter; ++letter) {
        line += *letter;
        if (*letter == ':')
            line += arguments.take(takeType(types)) + (letter[1] ? " " : "");
    }
    world().calls.push_back(line);
}

// --- Life ------------------------------------------------------------------------------------------------------------

void dispose(Object* object) {
    for (const ClassObject* type = object->isa; type; type = type->superclass) {
        const auto destroy = type->info->methods.find(intern(".cxx_destruct"));
        if (destroy != type->info->methods.end())
            reinterpret_cast<void (*)(Object*, Selector)>(destroy->second.code)(object, destroy->first);
    }
}

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

void releaseShared(SharedVariable* variable) {
    Entry* entry = livingEntry(variable, "release");
    if (--entry->count > 0)
        return;
    if (variable->flags & blockHasHelpers)
        variable->destroy(variable);
    livingEntry(variable, "release")->dead = true;
}

}  // namespace

std::vector<std::string> takeCalls() {
    const Lock lock(world().mutex);
    return std::exchange(world().calls, {});
}

void recordCall(std::string line, const void* caller) {
    const Lock lock(world().mutex);
    if (!isIn(caller, __start_fake_text, __stop_fake_text))
        world().calls.push_back(std::move(line));
}

std::string describe(const void* object) {
    if (!object)
        return "nil";
    const Lock lock(world().mutex);
    const auto entry = world().entries.find(object);
    const bool known = entry != world().entries.end();
    if (!known && !isConstant(object))
        return "pointer";  // as to a structure; of a block on the stack, its type says what it is
    std::string kind;
    if (known && !entry->second.type) {
        kind = entry->second.kind;
    } else {
        const auto plain = static_cast<const Object*>(object);
        if (plain->isa == &globalBlockClass || plain->isa == &mallocBlockClass)
            return "block";
        if (!plain->isa || (plain->isa->table->flags & metaclassFlag))
            return plain->isa ? className(static_cast<const ClassObject*>(object)) : "protocol";
        if (!(known && entry->second.dead) && findInherited(plain->isa, intern("recordedText")))
            return send<const char*>(const_cast<Object*>(plain), "recordedText");
        kind = className(plain->isa);
    }
    int& number = world().numbers[object];
    if (number == 0)
        number = ++world().lastNumbers[kind];
    return kind + "#" + std::to_string(number);
}

std::string liveObjects() {
    const Lock lock(world().mutex);
    std::map<std::string, int> counts;
    for (const auto& [pointer, entry] : world().entries)
        if (!entry.dead)
            ++counts[entry.kind];
    std::string text;
    for (const auto& [kind, count] : counts)
        text += (text.empty() ? "" : ", ") + kind + " " + std::to_string(count);
    return text;
}

std::string kindOf(const void* object) {
    const Lock lock(world().mutex);
    const Entry* const entry = livingEntry(object, "use");
    return entry ? entry->kind : className(static_cast<const Object*>(object)->isa);
}

long retainCount(const void* object) {
    const Lock lock(world().mutex);
    const auto found = world().entries.find(object);
    return found == world().entries.end() || found->second.dead ? 0 : found->second.count;
}

void reset() {
    const Lock lock(world().mutex);
    world().calls.clear();
    world().numbers.clear();
    world().lastNumbers.clear();
    std::erase_if(world().entries, [](const auto& item) {
        if (item.second.dead)
            std::free(const_cast<void*>(item.first));
        return item.second.dead;
    });
}

void* makeCObject(const char* type) { return allocate(sizeof(Object), nullptr, type); }

}  // namespace kinesta::objc

using namespace kinesta::objc;  // what follows is called by what the compiler writes

extern "C" {

Method objcTestFindMethod(CallFrame* frame, int kind) {
    const std::size_t firstInteger = (kind & 1) ? 1 : 0;
    const Lock lock(world().mutex);
    const auto selector = reinterpret_cast<Selector>(frame->integers[firstInteger + 1]);
    auto receiver = reinterpret_cast<Object*>(frame->integers[firstInteger]);
    if (!receiver)
        return objcTestNilMethod;
    const ClassObject* type = nullptr;
    if (kind & 2) {
        const auto super = reinterpret_cast<Super*>(receiver);
        receiver = super->receiver;
        frame->integers[firstInteger] = reinterpret_cast<std::uint64_t>(receiver);
        type = super->current->superclass;
    } else {
        if (reinterpret_cast<const Object*>(receiver)->isa != &stackBlockClass)
            livingEntry(receiver, ("message " + std::string(selector)).c_str());
        type = receiver->isa;
    }
    const MethodEntry* method = findInherited(type, selector);
    if (!method)
        fail(describe(receiver) + " does not understand " + selector);
    const auto code = reinterpret_cast<const char*>(method->code);
    if (isIn(code, __start_fake_text, __stop_fake_text) &&
        !isIn(frame->returnAddress, __start_fake_text, __stop_fake_text))
        recordMessage(*frame, receiver, *method, firstInteger + 2);
    return method->code;
}

Selector sel_registerName(const char* name) { return intern(name); }

bool objcTestResponds(const ClassObject* type, Selector selector) { return findInherited(type, selector) != nullptr; }

bool objcTestConforms(const ClassObject* type, const Protocol* protocol) {
    const auto conforms = [protocol](const auto& self, const Protocol* each) -> bool {
        if (std::strcmp(each->name, protocol->name) == 0)
            return true;
        for (std::int64_t i = 0; each->protocols && i < each->protocols->count; ++i)
            if (self(self, each->protocols->entries[i]))
                return true;
        return false;
    };
    for (; type; type = type->superclass)
        for (const Protocol* each : type->info->protocols)
            if (conforms(conforms, each))
                return true;
    return false;
}

Object* objcTestMake(ClassObject* type) {
    auto object = static_cast<Object*>(allocate(type->table->instanceSize, type, className(type)));
    object->isa = type;
    construct(object, type);
    return object;
}

/// Called by the root class at the end of -dealloc.
void objcTestDispose(Object* object) { dispose(object); }

ClassObject* objc_lookUpClass(const char* name) {
    for (ClassObject** type = __start_objc_classlist; type < __stop_objc_classlist; ++type)
        if (std::strcmp(className(*type), name) == 0)
            return *type;
    return nullptr;
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
Object* objc_opt_self(Object* object) { return object; }

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

Object* objc_loadWeak(Object** variable) { return objc_autorelease(objc_loadWeakRetained(variable)); }

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

void objc_setProperty(Object* o, Selector, std::ptrdiff_t offset, Object* value, bool, signed char copy) {
    setProperty(o, value, offset, copy != 0);
}
void objc_setProperty_atomic(Object* o, Selector, Object* v, std::ptrdiff_t offset) {
    setProperty(o, v, offset, false);
}
void objc_setProperty_nonatomic(Object* o, Selector, Object* v, std::ptrdiff_t offset) {
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

// --- Blocks

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

void _Block_release(const void* block) { objc_release(static_cast<Object*>(const_cast<void*>(block))); }

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
