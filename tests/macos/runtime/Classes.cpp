// Classes and their methods, and what happens to a message.
#include <cstring>
#include <string_view>

#include "ArgumentReader.h"
#include "TestRuntime.h"
#include "World.h"

// Tables that the linker gathers from all object files; absent where no file has any.
#define SECTION(type, name)                                 \
    extern "C" __attribute__((weak)) type __start_##name[]; \
    extern "C" __attribute__((weak)) type __stop_##name[];
SECTION(kinesta::objc::ClassObject*, objc_classlist)
SECTION(kinesta::objc::Category*, objc_catlist)
SECTION(kinesta::objc::Selector, objc_selrefs)
SECTION(kinesta::objc::Protocol*, objc_protolist)

extern "C" {
void* _objc_empty_cache = nullptr;
void objcTestNilMethod();
}

namespace kinesta::objc {
namespace {

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

}  // namespace

const MethodEntry* findInherited(const ClassObject* type, Selector selector) {
    for (; type; type = type->superclass)
        if (const auto found = type->info->methods.find(selector); found != type->info->methods.end())
            return &found->second;
    return nullptr;
}

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
    if (isFake(reinterpret_cast<const void*>(method->code)) && !isFake(frame->returnAddress))
        recordMessage(*frame, receiver, *method, firstInteger + 2);
    return method->code;
}

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

}  // extern "C"
