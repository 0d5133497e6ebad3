#include <kornum/PlatformResources.h>

#include <kornum/PlatformExceptions.h>

#include <map>
#include <mutex>
#include <unordered_map>

namespace Platform {
namespace {

// The registered identifiers by name, and the texts that replace defaults by id.
struct ResourceRegistry {
    std::mutex lock;
    std::map<std::string, const ResourceString*, std::less<>> byName;
    std::unordered_map<int, std::string> replaced;
};

ResourceRegistry& Registry() {
    static ResourceRegistry registry;
    return registry;
}

}  // namespace

std::string ResourceString::Text() const {
    ResourceRegistry& registry = Registry();
    std::lock_guard guard(registry.lock);
    auto found = registry.replaced.find(Id);
    return found != registry.replaced.end() ? found->second : std::string(DefaultText);
}

void SetResourceText(const ResourceString& resource, std::string text) {
    ResourceRegistry& registry = Registry();
    std::lock_guard guard(registry.lock);
    registry.replaced[resource.Id] = std::move(text);
}

void ReplaceResourceTable(const ResourceTable& table) {
    ResourceRegistry& registry = Registry();
    std::unordered_map<int, std::string> replaced;
    std::lock_guard guard(registry.lock);
    for (const auto& [name, text] : table) {
        auto found = registry.byName.find(name);
        if (found == registry.byName.end())
            throw Exception("Unknown message identifier '" + name + "'");
        replaced[found->second->Id] = text;
    }
    registry.replaced = std::move(replaced);
}

void RestoreDefaultResources() {
    ResourceRegistry& registry = Registry();
    std::lock_guard guard(registry.lock);
    registry.replaced.clear();
}

const ResourceString* FindResource(std::string_view name) {
    ResourceRegistry& registry = Registry();
    std::lock_guard guard(registry.lock);
    auto found = registry.byName.find(name);
    return found != registry.byName.end() ? found->second : nullptr;
}

bool RegisterResources(const ResourceString* const* resources, std::size_t count) {
    ResourceRegistry& registry = Registry();
    std::lock_guard guard(registry.lock);
    for (std::size_t i = 0; i < count; ++i)
        registry.byName.emplace(resources[i]->Name, resources[i]);
    return true;
}

}  // namespace Platform
