// Computes with seeded operands and prints one hash for each block of results, so that two builds
// of the arithmetic can be compared byte for byte: one line "NAME BITS BLOCK HASH" for each block.
//
// usage: differential [--basic N] [--function N] [--composed N] [--text N] [--bits B] [--only NAME]
//                     [--seed S] [--show BLOCK] [--members]
//
// Each operation of a group is called N times, 0 if its option is missing. --show prints the
// operands and results of one block instead of the hashes. --members leaves out what the plug-in
// has no member for, and the results of what fails.
#include "tests/differential/driver.hpp"

int main(int count, char** words) {
    using differential::Operations;
    return differential::Main(count, words, Operations<ttmath::Big<2, 8>>,
                              Operations<ttmath::Big<16, 64>>);
}
