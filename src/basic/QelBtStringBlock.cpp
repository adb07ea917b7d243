#include <velmor/basic/QelBtStringBlock.h>

#include <cstdlib>
#include <cstring>

#include <velmor/basic/QelBtStringConsts.h>
#include <velmor/core/QelCoFailures.h>

namespace Velmor {

static QelBtStringBlock* fs_newBlock(unsigned int capacity, unsigned int elementSize) {
    return static_cast<QelBtStringBlock*>(
        std::malloc(QelBtStringBlock::cs_elementsOffset + std::size_t(capacity) * elementSize));
}

void QelBtStringBlock::cs_refDown(QelBtStringBlock*& block) {
    if (block == nullptr) return;
    if (--block->refCount == 0) std::free(block);
    block = nullptr;
}

void QelBtStringBlock::cs_allocate(QelBtStringBlock*& block, unsigned int need,
                                   unsigned int elementSize) {
    if (block != nullptr && block->refCount == 1 && block->capacity >= need) return;
    unsigned int capacity = QelBtStringConsts::cs_getAllocSize(need);
    cs_refDown(block);  // the old text goes before the new block exists
    QelBtStringBlock* fresh = fs_newBlock(capacity, elementSize);
    if (fresh == nullptr) {
        g_qelCoNewMemoryFailed(QelBtStringConsts::cs_string, QelBtStringConsts::cs_allocate);
    }
    fresh->refCount = 1;
    fresh->capacity = capacity;
    fresh->length = 0;
    std::memset(fresh->elements(), 0, elementSize);
    block = fresh;
}

void QelBtStringBlock::cs_copyOnWrite(QelBtStringBlock*& block, unsigned int need,
                                      unsigned int elementSize) {
    unsigned int length = block != nullptr ? block->length : 0;
    if (need == QelBtStringConsts::npos) need = length + 1;
    if (block != nullptr && block->refCount == 1 && block->capacity >= need) return;
    if (length >= need) need = length + 1;  // a shared block asked to be cut keeps its text
    unsigned int capacity = QelBtStringConsts::cs_getAllocSize(need);
    QelBtStringBlock* fresh = fs_newBlock(capacity, elementSize);
    if (fresh == nullptr) {
        g_qelCoNewMemoryFailed(QelBtStringConsts::cs_string, QelBtStringConsts::cs_copyOnWrite);
    }
    fresh->refCount = 1;
    fresh->capacity = capacity;
    fresh->length = length;
    if (block != nullptr) {
        std::memcpy(fresh->elements(), block->elements(), std::size_t(length) * elementSize);
    }
    std::memset(static_cast<char*>(fresh->elements()) + std::size_t(length) * elementSize, 0,
                elementSize);
    cs_refDown(block);
    block = fresh;
}

}  // namespace Velmor
