#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace service {

/// Why a request is not served: the HTTP status and a text for the client that names the place of the fault.
struct Refusal
{
    int status = 400;
    QString message;
};

/// What an operation gives: its value, or the refusal that ends the request.
template <typename T> class Result
{
public:
    Result(T value)
        : m_state(std::move(value))
    {}
    Result(Refusal refusal)
        : m_state(std::move(refusal))
    {}

    bool ok() const { return std::holds_alternative<T>(m_state); }
    T &value() { return std::get<T>(m_state); }
    const T &value() const { return std::get<T>(m_state); }
    const Refusal &refusal() const { return std::get<Refusal>(m_state); }

private:
    std::variant<T, Refusal> m_state;
};

} // namespace service
