#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace velkbench {

/// Seconds of wall clock and of processor time (all threads of this process).
struct Seconds
{
    double wall = 0;
    double cpu = 0;
};

Seconds measure(const std::function<void()> &work);

/// Runs the product beside references in one benchmark: in every iteration each of them once, so
/// that a slow spell of the machine meets all. The best time of each counts. Counters "vs_NAME" are
/// ratios of processor time, product by reference; "ms_NAME" the reference's milliseconds.
class Comparison
{
public:
    /// \a name stands in the counters' names.
    void addReference(const std::string &name, std::function<void()> work);
    /// Runs the benchmark's loop; only the product's time goes into the benchmark's own figures.
    /// \a prepare runs before each run of the product, unmeasured.
    void run(benchmark::State &state, const std::function<void()> &product,
             const std::function<void()> &prepare = {});
    /// The product's best time; after run().
    Seconds product() const { return m_product; }

private:
    struct Reference
    {
        std::string name;
        std::function<void()> work;
        Seconds best;
    };
    std::vector<Reference> m_references;
    Seconds m_product;
};

/// Peak of anonymous memory (heap and stacks, without mapped files) while this object lives,
/// sampled every millisecond, above what the process had at construction.
class PeakMemory
{
public:
    PeakMemory();
    ~PeakMemory();
    PeakMemory(const PeakMemory &) = delete;
    PeakMemory &operator=(const PeakMemory &) = delete;
    /// Bytes.
    double peak() const;

private:
    struct Sampler;
    Sampler *m_sampler;
};

} // namespace velkbench
