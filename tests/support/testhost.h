#pragma once

#include <QTemporaryDir>

class TestService;

/// The host around a page under test: skins with empty style sheets in a temporary folder, settings that
/// leave those of the user alone, the identity "tester" of "product" with the token "token", and the service.
class TestHost
{
public:
    /// \a service may be null; requests then go nowhere.
    explicit TestHost(const TestService *service = nullptr);
    ~TestHost();

private:
    QTemporaryDir m_folder;
};
