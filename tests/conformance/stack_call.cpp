#include "stack_call.h"

#ifdef __i386__

#include <cstring>

extern "C" ZelmStatus zelmtestCallWithStack(void (*function)(), const std::uint32_t *words,
                                            std::size_t wordCount, unsigned misalignment);

asm(R"(
    .text
    .globl zelmtestCallWithStack
    .hidden zelmtestCallWithStack
    .type zelmtestCallWithStack, @function
zelmtestCallWithStack:
    pushl %ebp
    movl %esp, %ebp
    pushl %esi
    movl 12(%ebp), %esi
    movl 16(%ebp), %ecx
    leal (,%ecx,4), %eax
    subl %eax, %esp
    andl $-16, %esp
    subl 20(%ebp), %esp
1:
    decl %ecx
    js 2f
    movl (%esi,%ecx,4), %eax
    movl %eax, (%esp,%ecx,4)
    jmp 1b
2:
    call *8(%ebp)
    movl -4(%ebp), %esi
    leave
    ret
    .size zelmtestCallWithStack, .-zelmtestCallWithStack
)");

namespace zelmtest {

ZelmStatus callWithStack(void (*function)(), const Target &target, const std::vector<Value> &values,
                         unsigned misalignment) {
    std::vector<std::uint32_t> words;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isConstant = target.function->arguments[i].kind == ArgumentKind::Constant;
        const std::size_t count = isConstant ? zelmref::elementSize(target.cell) / 4 : 1;
        std::uint32_t halves[2];
        std::memcpy(halves, &values[i], sizeof halves);
        words.insert(words.end(), halves, halves + count);
    }
    const ZelmStatus status = zelmtestCallWithStack(function, words.data(), words.size(), misalignment);
    return target.function->isVoid ? ZELM_OK : status;
}

} // namespace zelmtest

#endif
