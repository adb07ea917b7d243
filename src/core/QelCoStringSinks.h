// The string sinks through which one formatting routine fills a string of either family.
//
// Each wraps a string it does not own, usually a local of the caller, and receives the
// finished text through assign(). Used on one thread, for the duration of one call.
#ifndef VELMOR_SRC_CORE_QELCOSTRINGSINKS_H
#define VELMOR_SRC_CORE_QELCOSTRINGSINKS_H

#include <string>

#include <velmor/basic/QelBtTString.h>

namespace Velmor {

class internalStrBase {
public:
    virtual void assign(const char* text) = 0;

protected:
    ~internalStrBase() = default;
};

class internalStr : public internalStrBase {
public:
    explicit internalStr(std::string* target) : m_target(target) {}
    void assign(const char* text) override { *m_target = text; }

private:
    std::string* m_target;
};

class internalWStrBase {
public:
    virtual void assign(const wchar_t* text) = 0;

protected:
    ~internalWStrBase() = default;
};

class internalWStr : public internalWStrBase {
public:
    explicit internalWStr(std::wstring* target) : m_target(target) {}
    void assign(const wchar_t* text) override { *m_target = text; }

private:
    std::wstring* m_target;
};

class internalBtStr : public internalStrBase {
public:
    explicit internalBtStr(QelBtTString<char>* target) : m_target(target) {}
    void assign(const char* text) override { *m_target = text; }

private:
    QelBtTString<char>* m_target;
};

class internalBtWStr : public internalWStrBase {
public:
    explicit internalBtWStr(QelBtTString<wchar_t>* target) : m_target(target) {}
    void assign(const wchar_t* text) override { *m_target = text; }

private:
    QelBtTString<wchar_t>* m_target;
};

}  // namespace Velmor

#endif
