#pragma once

#include <functional>
#include <string>
#include <vector>

// What the core does with an input of any size.
struct Operation
{
    // Makes an input of about so many units and hands out what is to be done with it.
    using Prepared = std::function<void()>;

    std::string name;
    std::function<Prepared(int size)> prepare;
    int bytesOfAUnit = 2; // 1 for what is read from files
};

const std::vector<Operation> &operations();
