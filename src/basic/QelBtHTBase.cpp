#include <velmor/basic/QelBtHTBase.h>

#include <cstring>
#include <new>
#include <utility>

#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoTSharedPtrDefine.h>

QEL_CO_SHARED_PTR_DEFINE(Velmor::QelBtHTManipBase)

namespace Velmor {

char const* QelBtHash::cs_QelBtTHashTable = "QelBtTHashTable";
char const* QelBtHash::cs_QelBtTHTManip = "QelBtTHTManip";
char const* QelBtHash::cs_Insert = "insert";
char const* QelBtHash::cs_Operator = "operator []";
char const* QelBtHash::cs_Duplicate = "duplicate";
char const* QelBtHash::cs_DuplicateElem = "duplicateElem";
char const* QelBtHash::cs_NewElement = "newElement";
char const* QelBtHash::cs_NewDefaultElement = "newDefaultElement";
char const* QelBtHash::cs_cszOperatorEqual = "operator =";

QelBtHTManipBase::~QelBtHTManipBase() {}

// A zeroed array of `count` slots and the extra one; null when memory is short.
static QelBtHTElemBase** fs_newBuckets(unsigned int count) {
    try {
        auto** buckets = new QelBtHTElemBase*[count + 1];
        std::memset(buckets, 0, (std::size_t(count) + 1) * sizeof *buckets);
        return buckets;
    } catch (std::exception const&) {
        return nullptr;
    }
}

QelBtHTBase::QelBtHTBase(unsigned int buckets) : m_bucketCount(buckets), m_buckets(nullptr) {}

QelBtHTBase::QelBtHTBase(QelBtHTBase const& other) : m_bucketCount(0), m_buckets(nullptr) {
    copyHTBase(other);
}

QelBtHTBase::~QelBtHTBase() {}

void QelBtHTBase::initTable(QelBtHTManipBase* manipulator) {
    if (manipulator == nullptr) {
        g_qelCoNewMemoryFailed(QelBtHash::cs_QelBtTHashTable, QelBtHash::cs_QelBtTHashTable);
    }
    m_manipulator = manipulator;
    m_buckets = fs_newBuckets(m_bucketCount);
    if (m_buckets == nullptr) {
        g_qelCoNewMemoryFailed(QelBtHash::cs_QelBtTHashTable, QelBtHash::cs_QelBtTHashTable);
    }
}

void QelBtHTBase::assignBase(QelBtHTBase const& other) {
    if (this == &other) return;
    deleteHashTable();
    copyHTBase(other);
}

void QelBtHTBase::copyHTBase(QelBtHTBase const& other) {
    m_bucketCount = other.m_bucketCount;
    m_manipulator = other.m_manipulator->duplicate();
    m_buckets = fs_newBuckets(m_bucketCount);
    if (m_buckets == nullptr) g_qelCoNewMemoryFailed("QelBtHTBase", "copyHTBase");
    for (unsigned int b = 0; b < m_bucketCount; ++b) {
        QelBtHTElemBase** tail = &m_buckets[b];
        for (QelBtHTElemBase* e = other.m_buckets[b]; e != nullptr; e = e->next) {
            QelBtHTElemBase* copy = m_manipulator->duplicateElem(e);
            copy->link(tail);
            tail = &copy->next;
        }
    }
}

void QelBtHTBase::swapBase(QelBtHTBase& other) {
    std::swap(m_bucketCount, other.m_bucketCount);
    std::swap(m_buckets, other.m_buckets);
    QelCoTSharedPtr<QelBtHTManipBase> manipulator = m_manipulator;
    m_manipulator = other.m_manipulator;
    other.m_manipulator = manipulator;
}

void QelBtHTBase::disposeAll() {
    if (m_buckets == nullptr) return;
    for (unsigned int b = 0; b < m_bucketCount; ++b) {
        QelBtHTElemBase* e = m_buckets[b];
        while (e != nullptr) {
            QelBtHTElemBase* next = e->next;
            m_manipulator->disposeElem(e);
            e = next;
        }
        m_buckets[b] = nullptr;
    }
}

void QelBtHTBase::clearBase() {
    disposeAll();
    if (m_buckets != nullptr) m_buckets[m_bucketCount] = nullptr;
}

void QelBtHTBase::deleteHashTable() {
    disposeAll();
    delete[] m_buckets;
    m_buckets = nullptr;
}

QelBtHTElemBase** QelBtHTBase::bucketOf(void const* key) const {
    return &m_buckets[m_manipulator->hashFromKey(key) % m_bucketCount];
}

QelBtHTElemBase** QelBtHTBase::searchByKey(void const* key, QelBtHTElemBase** slot) const {
    while (*slot != nullptr && !m_manipulator->keyEquals(*slot, key))
        slot = &(*slot)->next;
    return slot;
}

void QelBtHTBase::insertBase(QelBtHTIterBase* pos, int* inserted, void const* value) {
    void const* key = m_manipulator->keyFromValue(value);
    QelBtHTElemBase** bucket = bucketOf(key);
    QelBtHTElemBase** link = searchByKey(key, bucket);
    *inserted = 0;
    if (*link == nullptr) {
        m_manipulator->newElement(value)->link(link);
        *inserted = 1;
    }
    pos->setPos(bucket, m_buckets + m_bucketCount, *link);
}

int QelBtHTBase::eraseBase(void const* key) {
    QelBtHTIterBase pos;
    findBase(&pos, key);
    if (pos.m_element == nullptr) return 0;
    pos.m_element->unlink();
    m_manipulator->disposeElem(pos.m_element);
    return 1;
}

void QelBtHTBase::findBase(QelBtHTIterBase* pos, void const* key) const {
    QelBtHTElemBase** bucket = bucketOf(key);
    QelBtHTElemBase** end = m_buckets + m_bucketCount;
    QelBtHTElemBase* found = *searchByKey(key, bucket);
    if (found != nullptr) {
        pos->setPos(bucket, end, found);
    } else {
        pos->setPos(end, end, nullptr);
    }
}

QelBtHTElemBase* QelBtHTBase::indexBase(void const* key) const {
    QelBtHTElemBase** link = searchByKey(key, bucketOf(key));
    if (*link == nullptr) m_manipulator->newDefaultElement(key)->link(link);
    return *link;
}

void QelBtHTBase::findFirst(QelBtHTIterBase* pos) const {
    QelBtHTElemBase** end = m_buckets + m_bucketCount;
    QelBtHTElemBase** slot = m_buckets;
    while (slot < end && *slot == nullptr)
        ++slot;
    pos->setPos(slot, end, *slot);
}

void QelBtHTBase::setEnd(QelBtHTIterBase* a, QelBtHTIterBase* b) {
    QelBtHTElemBase** end = m_buckets + m_bucketCount;
    a->setPos(end, end, nullptr);
    b->setPos(end, end, nullptr);
}

}  // namespace Velmor
