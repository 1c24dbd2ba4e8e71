#include "art/pictures/parallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

void forEachRow(int count, const std::function<void(int row)>& work) {
    std::atomic<int> next{0};
    const auto takeRows = [&] {
        for (int row = next++; row < count; row = next++)
            work(row);
    };
    std::vector<std::thread> helpers;
    for (unsigned i = 1; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
        helpers.emplace_back(takeRows);
    takeRows();
    for (std::thread& helper : helpers)
        helper.join();
}
