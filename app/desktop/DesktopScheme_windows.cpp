// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DesktopScheme.h"

#include <QWinEventNotifier>

#include <windows.h>

#include <functional>

namespace {
constexpr wchar_t Personalize[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";

/// The settings of the colors, and an event for whenever they change.
class PersonalizeKey : public QObject
{
public:
    PersonalizeKey(HKEY key, std::function<void(bool)> listener, QObject *parent)
        : QObject(parent)
        , m_key(key)
        , m_event(CreateEventW(nullptr, FALSE, FALSE, nullptr))
        , m_notifier(m_event)
        , m_tell(std::move(listener))
    {
        connect(&m_notifier, &QWinEventNotifier::activated, this, [this] { look(); });
        look();
    }
    ~PersonalizeKey() override
    {
        m_notifier.setEnabled(false);
        CloseHandle(m_event);
        RegCloseKey(m_key);
    }

private:
    void look()
    {
        // For one change only, and before the value is read, so that none is missed.
        RegNotifyChangeKeyValue(m_key, FALSE, REG_NOTIFY_CHANGE_LAST_SET, m_event, TRUE);
        DWORD isLight = 1;
        DWORD size = sizeof isLight;
        RegGetValueW(m_key, nullptr, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &isLight, &size);
        m_tell(isLight == 0);
    }

    HKEY m_key;
    HANDLE m_event;
    QWinEventNotifier m_notifier;
    std::function<void(bool)> m_tell;
};
} // namespace

void DesktopScheme::follow()
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, Personalize, 0, KEY_QUERY_VALUE | KEY_NOTIFY, &key) == ERROR_SUCCESS)
        new PersonalizeKey(
            key, [this](bool prefersDark) { set(prefersDark); }, this);
}
