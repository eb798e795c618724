// Memory as the tests script it: while alocacoesAteFalhar counts down from N,
// the Nth allocation after it was set fails, once, as a large one fails when
// memory runs out; it is -1 after that failure. The operators stand in a file
// of their own so that no caller sees the bodies of both new and delete (the
// compiler would take free() after operator new for a mismatch).
#include <cstdlib>
#include <new>

int alocacoesAteFalhar = -1;

void* operator new(std::size_t n) {
    if (alocacoesAteFalhar >= 0 && alocacoesAteFalhar-- == 0) throw std::bad_alloc();
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void* operator new(std::size_t n, const std::nothrow_t&) noexcept { return std::malloc(n ? n : 1); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
