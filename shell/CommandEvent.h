// A command sent to the Print dialog's window ('ok  ', 'help', 'QFup',
// 'QFdn'), which the shell's event filter may handle. The host sends 'ok  '
// before it prints and prints only when no one consumed it.
#pragma once

#include <QEvent>

#include <cstdint>

namespace orvan {

class CommandEvent : public QEvent
{
public:
    explicit CommandEvent(std::uint32_t command) : QEvent(eventType()), m_command(command)
    {
        setAccepted(false);
    }
    std::uint32_t command() const { return m_command; }
    // Set by the handler that consumed the command (the dialog stays open).
    bool consumed() const { return m_consumed; }
    void setConsumed() { m_consumed = true; }

    static QEvent::Type eventType();

private:
    std::uint32_t m_command;
    bool m_consumed = false;
};

} // namespace orvan
