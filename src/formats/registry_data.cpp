#include "formats/registry_data.h"

#include "text/ignoring_case.h"

namespace morpho {

const RegistryKey* RegistryData::Find(std::string_view path) const {
    const auto key = keys_.find(Folded(path));
    return key == keys_.end() ? nullptr : &key->second;
}

const RegistryValue* RegistryData::FindValue(std::string_view path, std::string_view name) const {
    const RegistryKey* key = Find(path);
    if (!key) return nullptr;
    const auto value = key->values.find(Folded(name));
    return value == key->values.end() ? nullptr : &value->second;
}

RegistryKey& RegistryData::Add(std::string_view path) {
    const auto known = keys_.find(Folded(path));
    if (known != keys_.end()) return known->second;
    for (std::size_t end = path.find('\\'); end != path.npos; end = path.find('\\', end + 1)) {
        const std::string_view parent = path.substr(0, end);
        keys_.try_emplace(Folded(parent), RegistryKey{std::string(parent), {}});
    }
    return keys_.try_emplace(Folded(path), RegistryKey{std::string(path), {}}).first->second;
}

void RegistryData::Set(std::string_view path, RegistryValue value) {
    RegistryValue& place = Add(path).values[Folded(value.name)];
    if (!place.name.empty()) value.name = place.name;
    place = std::move(value);
}

bool RegistryData::RemoveValue(std::string_view path, std::string_view name) {
    const auto key = keys_.find(Folded(path));
    return key != keys_.end() && key->second.values.erase(Folded(name)) > 0;
}

void RegistryData::RemoveKey(std::string_view path) {
    const std::string key = Folded(path);
    keys_.erase(key);
    const std::string below = key + '\\';
    auto first = keys_.lower_bound(below);
    auto last = first;
    while (last != keys_.end() && last->first.starts_with(below))
        ++last;
    keys_.erase(first, last);
}

}  // namespace morpho
