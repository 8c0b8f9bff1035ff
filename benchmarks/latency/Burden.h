#pragma once

#include <atomic>
#include <thread>
#include <vector>

/// Threads that do nothing as fast as they can, as a program that computes beside a player would. They end
/// with this object.
class Burden
{
public:
    explicit Burden(int count)
    {
        for (int i = 0; i < count; ++i)
            threads.emplace_back([this] {
                while (!ends)
                    ++turns;
            });
    }
    ~Burden()
    {
        ends = true;
        for (std::thread& thread : threads)
            thread.join();
    }
    Burden(const Burden&) = delete;
    Burden& operator=(const Burden&) = delete;

private:
    std::atomic<bool> ends{false};
    std::atomic<unsigned> turns{0};
    std::vector<std::thread> threads;
};
