// must be found: no viable conversion from 'const QString' to 'NSString
#include <QString>

#import <Foundation/Foundation.h>

NSURL* argumentType(const QString& path);
NSURL* argumentType(const QString& path) {
    return [NSURL fileURLWithPath:path isDirectory:YES];
}
