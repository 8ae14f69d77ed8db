#pragma once

#include <QList>

#import <Foundation/Foundation.h>

namespace Platform {

/// Blocks that are called on the main thread when something is notified; they end with this object, which must end on
/// the main thread too. For Objective-C++ only.
class NotificationObservers final {
public:
    NotificationObservers() = default;
    ~NotificationObservers() {
        for (const Observer& observer : m_all)
            [observer.centre removeObserver:observer.token];
    }
    NotificationObservers(const NotificationObservers&) = delete;
    NotificationObservers& operator=(const NotificationObservers&) = delete;

    void observe(NSNotificationCenter* _Nonnull centre, NSNotificationName _Nonnull name,
                 void (^_Nonnull block)(NSNotification* _Nonnull)) {
        // The main queue: the workspace may post from any thread, and everything of ours lives on the main one.
        m_all.append({centre, [centre addObserverForName:name
                                                  object:nil
                                                   queue:NSOperationQueue.mainQueue
                                              usingBlock:block]});
    }

private:
    /// A centre and the token that it gave for one block.
    struct Observer {
        NSNotificationCenter* _Nonnull centre;
        id<NSObject> _Nonnull token;
    };
    QList<Observer> m_all;
};

} // namespace Platform
