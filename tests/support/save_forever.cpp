// Saves two contents in turn over one file until it is killed. Each content is one letter, a million times,
// so that a mixed or cut file cannot be mistaken for either. It says when the first save stands.
#include "base/files.h"

#include <cstdio>

int main(int count, char** arguments) {
    if (count != 2) return 2;
    constexpr std::size_t size = 1000000;
    const wortlex::Bytes contents[] = {wortlex::Bytes(size, std::byte{'a'}),
                                       wortlex::Bytes(size, std::byte{'b'})};
    for (unsigned round = 0;; ++round) {
        if (!wortlex::save_atomically(arguments[1], contents[round % 2])) return 1;
        if (round == 0) {
            std::puts("saved");
            std::fflush(stdout);
        }
    }
}
