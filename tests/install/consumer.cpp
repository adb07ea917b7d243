// Builds against the installed headers and library and prints one exception's text.
#include <velmor/velmor.h>

#include <iostream>

int main() {
    try {
        Velmor::g_qelCoNullCheckFailed("Consumer", "run", "input");
    } catch (Velmor::QelCoException const& e) {
        std::cout << e.what() << std::endl;
        return 0;
    }
    return 1;
}
