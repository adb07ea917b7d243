// QelBtTHashTable beside std::unordered_map (reserved to the same bucket count) with the same
// hash functor, and the block allocator beside malloc/free.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <unordered_map>
#include <vector>

#include <velmor/velmor.h>

#if __has_include(<absl/container/flat_hash_map.h>)
#include <absl/container/flat_hash_map.h>
#define VELMOR_BENCH_ABSL 1
#endif

using namespace Velmor;

namespace {

struct UintHash {
    std::size_t operator()(std::uint32_t key) const {
        QelBtHashAcc acc;
        acc.put(key);
        return acc.getResult();
    }
    bool operator()(std::uint32_t a, std::uint32_t b) const { return a == b; }
};

struct StringHash {
    std::size_t operator()(std::string const& key) const {
        QelBtHashAcc acc;
        acc.put(key);
        return acc.getResult();
    }
    bool operator()(std::string const& a, std::string const& b) const { return a == b; }
};

template <class K>
K fs_key(std::uint32_t i);
template <>
std::uint32_t fs_key<std::uint32_t>(std::uint32_t i) {
    return i * 2654435761u;
}
template <>
std::string fs_key<std::string>(std::uint32_t i) {
    std::string key = "key-" + std::to_string(i * 2654435761u);
    key.resize(16, '#');
    return key;
}

template <class K>
std::vector<K> fs_keys(std::uint32_t n, std::uint32_t offset) {
    std::vector<K> keys;
    for (std::uint32_t i = 0; i < n; ++i)
        keys.push_back(fs_key<K>(i + offset));
    return keys;
}

template <class K, class H>
using Velmor = QelBtTHashTable<K, int, H, H, 1024>;

// Adapters, so one benchmark body serves every map.
template <class K, class H>
struct VelmorMap {
    explicit VelmorMap(std::uint32_t n) : table(n) {}
    void insert(K const& k) { table.insert(std::pair<const K, int>(k, 1)); }
    bool find(K const& k) { return table.find(k) != table.end(); }
    void erase(K const& k) { table.erase(k); }
    long sum() {
        long total = 0;
        for (auto i = table.begin(); i != table.end(); ++i)
            total += (*i).second;
        return total;
    }
    Velmor<K, H> table;
};

template <class Map, class K>
struct PeerMap {
    explicit PeerMap(std::uint32_t n) { map.reserve(n); }
    void insert(K const& k) { map.emplace(k, 1); }
    bool find(K const& k) { return map.find(k) != map.end(); }
    void erase(K const& k) { map.erase(k); }
    long sum() {
        long total = 0;
        for (auto const& entry : map)
            total += entry.second;
        return total;
    }
    Map map;
};

template <class M, class K>
void insertAll(benchmark::State& state) {
    auto n = static_cast<std::uint32_t>(state.range(0));
    std::vector<K> keys = fs_keys<K>(n, 0);
    for (auto _ : state) {
        M map(n);
        for (K const& k : keys)
            map.insert(k);
        benchmark::DoNotOptimize(map);
    }
    state.SetItemsProcessed(state.iterations() * n);
}

template <class M, class K>
void findHit(benchmark::State& state) {
    auto n = static_cast<std::uint32_t>(state.range(0));
    std::vector<K> keys = fs_keys<K>(n, 0);
    M map(n);
    for (K const& k : keys)
        map.insert(k);
    for (auto _ : state) {
        for (K const& k : keys)
            benchmark::DoNotOptimize(map.find(k));
    }
    state.SetItemsProcessed(state.iterations() * n);
}

template <class M, class K>
void findMiss(benchmark::State& state) {
    auto n = static_cast<std::uint32_t>(state.range(0));
    M map(n);
    for (K const& k : fs_keys<K>(n, 0))
        map.insert(k);
    std::vector<K> missing = fs_keys<K>(n, n);
    for (auto _ : state) {
        for (K const& k : missing)
            benchmark::DoNotOptimize(map.find(k));
    }
    state.SetItemsProcessed(state.iterations() * n);
}

template <class M, class K>
void eraseAll(benchmark::State& state) {
    auto n = static_cast<std::uint32_t>(state.range(0));
    std::vector<K> keys = fs_keys<K>(n, 0);
    for (auto _ : state) {
        state.PauseTiming();
        M map(n);
        for (K const& k : keys)
            map.insert(k);
        state.ResumeTiming();
        for (K const& k : keys)
            map.erase(k);
    }
    state.SetItemsProcessed(state.iterations() * n);
}

template <class M, class K>
void iterate(benchmark::State& state) {
    auto n = static_cast<std::uint32_t>(state.range(0));
    M map(n);
    for (K const& k : fs_keys<K>(n, 0))
        map.insert(k);
    for (auto _ : state)
        benchmark::DoNotOptimize(map.sum());
    state.SetItemsProcessed(state.iterations() * n);
}

struct Payload {
    char bytes[24];
};

void allocate_velmor(benchmark::State& state) {
    QelMemTBlockAllocator<Payload> allocator;
    std::vector<void*> slots(1024);
    for (auto _ : state) {
        for (void*& slot : slots)
            slot = new (allocator.allocateBase()) Payload();
        for (void* slot : slots)
            allocator.deallocateBase(slot);
    }
    state.SetItemsProcessed(state.iterations() * 1024);
}

void allocate_malloc(benchmark::State& state) {
    std::vector<void*> slots(1024);
    for (auto _ : state) {
        for (void*& slot : slots)
            slot = std::malloc(sizeof(Payload));
        for (void* slot : slots)
            std::free(slot);
    }
    state.SetItemsProcessed(state.iterations() * 1024);
}

void fs_sizes(benchmark::internal::Benchmark* b) {
    b->Arg(1024)->Arg(65536)->Arg(1 << 20)->MinTime(0.2)->Unit(benchmark::kMicrosecond);
}

}  // namespace

#define VELMOR_MAP_BENCH(operation, keyName, K, H)                                 \
    BENCHMARK_TEMPLATE(operation, VelmorMap<K, H>, K)                              \
        ->Name(#operation "_" #keyName "/velmor")                                  \
        ->Apply(fs_sizes);                                                         \
    BENCHMARK_TEMPLATE(operation, PeerMap<std::unordered_map<K, int, H, H>, K>, K) \
        ->Name(#operation "_" #keyName "/std")                                     \
        ->Apply(fs_sizes)

#define VELMOR_MAP_BENCHES(keyName, K, H)       \
    VELMOR_MAP_BENCH(insertAll, keyName, K, H); \
    VELMOR_MAP_BENCH(findHit, keyName, K, H);   \
    VELMOR_MAP_BENCH(findMiss, keyName, K, H);  \
    VELMOR_MAP_BENCH(eraseAll, keyName, K, H);  \
    VELMOR_MAP_BENCH(iterate, keyName, K, H)

VELMOR_MAP_BENCHES(uint32, std::uint32_t, UintHash);
VELMOR_MAP_BENCHES(string16, std::string, StringHash);

#ifdef VELMOR_BENCH_ABSL
BENCHMARK_TEMPLATE(
    findHit, PeerMap<absl::flat_hash_map<std::uint32_t, int, UintHash, UintHash>, std::uint32_t>,
    std::uint32_t)
    ->Name("findHit_uint32/absl")
    ->Apply(fs_sizes);
#endif

BENCHMARK(allocate_velmor)->Name("allocate24/velmor");
BENCHMARK(allocate_malloc)->Name("allocate24/malloc");

BENCHMARK_MAIN();
