// must be found: undeclared selector 'screenLocked:'
#import <Foundation/Foundation.h>

bool unknownSelector(NSObject* object);
bool unknownSelector(NSObject* object) {
    return [object respondsToSelector:@selector(screenLocked:)];
}
