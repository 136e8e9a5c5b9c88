// Values that cross the host interface: the resbuf chain node and its type codes.
#pragma once

#include "adesk.h"

typedef double ads_real;
typedef ads_real ads_point[3];
typedef long long ads_name[2];
typedef wchar_t ACHAR;

struct ads_binary {
  short clen;
  char* buf;
};

union ads_u_val {
  ads_real rreal;
  ads_real rpoint[3];
  short rint;
  ACHAR* rstring;
  ads_name rlname;
  Adesk::Int32 rlong;
  long long mnInt64;
  ads_binary rbinary;
  unsigned char ihandle[8];
};

struct resbuf {
  resbuf* rbnext;
  short restype;
  ads_u_val resval;
};

#define RTNONE 5000
#define RTREAL 5001
#define RTPOINT 5002
#define RTSHORT 5003
#define RTANG 5004
#define RTSTR 5005
#define RTENAME 5006
#define RTPICKS 5007
#define RTORINT 5008
#define RT3DPOINT 5009
#define RTLONG 5010
#define RTVOID 5014
#define RTLB 5016
#define RTLE 5017
#define RTDOTE 5018
#define RTNIL 5019
#define RTDXF0 5020
#define RTT 5021
#define RTRESBUF 5023
#define RTMODELESS 5027
#define RTINT64 5031

#define RTNORM 5100
#define RTERROR (-5001)
#define RTCAN (-5002)
#define RTREJ (-5003)
#define RTFAIL (-5004)
#define RTKWORD (-5005)
