#include "Support/FakeLoginItem.h"

#include "Platform/LoginItemContract.h"

using namespace Qt::StringLiterals;

class FakeLoginItemTest : public LoginItemContract {
    Q_OBJECT

    class FakeUser : public User {
    public:
        Kelvane::LoginItem& loginItem() override { return m_loginItem; }
        void turnOffElsewhere() override { m_loginItem.enabled = false; }
        void refuse() override { m_loginItem.refusal = u"Operation not permitted"_s; }

    private:
        Fakes::LoginItem m_loginItem;
    };
    std::unique_ptr<User> makeUser() override { return std::make_unique<FakeUser>(); }
};

QTEST_GUILESS_MAIN(FakeLoginItemTest)
#include "FakeLoginItemTest.moc"
