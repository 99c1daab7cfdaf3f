#pragma once

#include <Foundation/NSBundle.h>
#include <Foundation/NSCollections.h>
#include <Foundation/NSData.h>
#include <Foundation/NSError.h>
#include <Foundation/NSKeyValueObserving.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSTask.h>
#include <Foundation/NSURL.h>
#include <Foundation/NSUserDefaults.h>
#include <Foundation/NSValues.h>
#include <dispatch/dispatch.h>
