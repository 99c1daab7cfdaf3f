#include "TestRuntime.h"

#include <cstdlib>
#include <utility>

#include "World.h"

namespace kinesta::objc {

std::vector<std::string> takeCalls() {
    const Lock lock(world().mutex);
    return std::exchange(world().calls, {});
}

void recordCall(std::string line, const void* caller) {
    const Lock lock(world().mutex);
    if (!isFake(caller))
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
