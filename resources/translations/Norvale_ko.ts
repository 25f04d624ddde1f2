<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>&quot;%1&quot; 제거 중... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>브라우저 확장 프로그램이 없습니다</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>브라우저 확장 프로그램</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>확장 프로그램 검색...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 새로 고침</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>잠시 기다려 주세요...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>브라우저 확장 프로그램 검사 중...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>확장 프로그램 %1 / %2개 표시</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>확장 프로그램 총 %1개</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  선택 항목 제거 (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  선택 항목 제거</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>브라우저가 실행 중입니다</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>다음 브라우저의 백그라운드 프로세스가 아직 실행 중입니다:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>&apos;강제 종료&apos;를 클릭하면 관련 프로세스를 모두 자동으로 종료한 후 제거를 계속합니다. 직접 닫은 경우에는 &apos;다시 시도&apos;를 클릭하세요.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;의 백그라운드 프로세스가 아직 실행 중입니다.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>브라우저 창을 닫아도 백그라운드 프로세스가 남아 있을 수 있습니다. &apos;강제 종료&apos;를 클릭하여 자동으로 종료하거나, 직접 닫은 후 &apos;다시 시도&apos;를 클릭하세요.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>강제 종료 후 제거</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>완전히 종료할 수 없습니다: %1&lt;br&gt;작업 관리자에서 직접 종료한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>%1을(를) 완전히 종료할 수 없습니다. 작업 관리자에서 %2 프로세스를 모두 직접 종료한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>프로세스를 종료할 수 없음</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>확장 프로그램 제거</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;을(를) 제거하시겠습니까?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;%2 확장 프로그램 관리 페이지를 열고 확장 프로그램 ID를 복사합니다&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>확장 프로그램 제거 중...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ &quot;%1&quot; 제거됨</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>자동 제거 실패</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;을(를) 자동으로 제거할 수 없습니다</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>%1 확장 프로그램 관리 페이지를 열었습니다.&lt;br&gt;확장 프로그램 ID가 클립보드에 복사되었습니다:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;직접 제거한 후 &lt;b&gt;새로 고침&lt;/b&gt;을 클릭하세요.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>일괄 제거</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>선택한 확장 프로그램 &lt;b&gt;%1&lt;/b&gt;개를 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>확장 프로그램 %1개 제거 중...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>제거 완료</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>확장 프로그램 &lt;b&gt;%1&lt;/b&gt;개를 제거했습니다.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>목록이 자동으로 새로 고쳐집니다.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>일부 항목 제거 실패</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>성공 &lt;b&gt;%1&lt;/b&gt;개, 실패 &lt;b&gt;%2&lt;/b&gt;개.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>실패한 항목(브라우저에서 직접 제거하세요):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>확장 프로그램 %1개</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>디스크 정리</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>시스템의 불필요한 파일을 검사하여 디스크 공간을 안전하게 확보합니다</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>검사 중…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>잠시 기다려 주세요</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 다시 검사</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ 모두 선택</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 선택 항목 정리</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>검사 완료</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ 정리 완료, &lt;b&gt;%1&lt;/b&gt; 확보</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ 모두 선택 해제</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;개 범주 선택  ·  예상 확보 공간 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>정리할 수 있는 파일 %1개 범주, 총 %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1개 범주 선택  ·  예상 확보 공간 %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>검사 중…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows 임시 파일</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update 캐시</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome 캐시</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge 캐시</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox 캐시</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>시스템 로그 파일</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch 미리 읽기 캐시</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>미리 보기 캐시</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>크래시 덤프 파일</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>이전 Windows 시스템 백업</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>디스크 정리</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>불필요한 파일 정리</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>프로그램 제거</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>설치된 소프트웨어 관리</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows 앱</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>UWP 앱 관리</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>브라우저 확장 프로그램</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>확장 프로그램 관리</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>시스템 개요</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● 실시간</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>시스템 정보를 읽는 중…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>설치된 업데이트</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>실시간 성능</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>빠른 작업</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1코어</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>가동 시간 %1시간 %2분</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>가동 시간 %1일 %2시간</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>강제 제거</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  선택 항목 강제 제거</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>강제 제거 중: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>제거할 항목을 검사하는 중...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  각 항목을 꼼꼼히 확인하세요. 위험도가 높은 항목은 기본적으로 선택되지 않습니다.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>모두 선택 해제</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  제거할 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>선택한 항목을 제거하는 중...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>강제 제거 완료</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>프로그램과 관련 파일을 제거했습니다.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>설치 위치 %1은(는) 시스템 또는 사용자 폴더이므로 건드리지 않습니다.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>제거할 항목이 없습니다</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;개 항목 발견  ·  &lt;b&gt;%2&lt;/b&gt; 확보 가능</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>시작하는 중...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>강제 제거 완료  ·  &lt;b&gt;%1&lt;/b&gt; 확보</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>완료 ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>설치 폴더</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>앱 데이터</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>레지스트리</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>시작 프로그램</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>시작 바로 가기</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>예약된 작업</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>서비스</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ 고위험</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>프로세스 종료 중...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>설치 폴더 검사 중...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>앱 데이터 검사 중...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>레지스트리 검사 중...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>시작 프로그램 검사 중...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>예약된 작업 검사 중...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>서비스 검사 중...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>설치 폴더: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>앱 데이터: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>레지스트리 제거 항목: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>시작 프로그램 레지스트리: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>시작 프로그램 바로 가기: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>예약된 작업: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows 서비스: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>제거 중: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>완료: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>페이지 링크를 불러올 수 없습니다.

기술 지원팀에 문의하거나 소프트웨어를 다시 설치하세요.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>브라우저를 열 수 없음</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>기본 브라우저를 열 수 없습니다.

링크를 복사하여 직접 여세요:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>구성 오류</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Norvale 정보</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>언어 변경됨</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>언어가 %1(으)로 변경되었습니다.
지금 애플리케이션을 다시 시작합니다.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>다시 시작 실패</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>애플리케이션을 직접 다시 시작하세요.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>잔여 파일 정리</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  잔여 파일 정리</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>잔여 파일 검사 중...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>초기화 중...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  잔여 파일이 없습니다!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>모두 선택 해제</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;개 항목 발견  ·  &lt;b&gt;%2&lt;/b&gt; 확보 가능</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>잔여 파일이 없습니다</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  선택 항목 정리</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>정리 중...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>정리 중... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  정리 완료 — %1 확보</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>완료 ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>안전</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인 필요</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>남겨진 앱 데이터</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>캐시 파일</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>로그 파일</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>오류 보고서</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>임시 파일</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>시스템 개요</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>디스크 정리</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>프로그램 제거</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows 앱</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>브라우저 확장 프로그램</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Norvale 정보</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  언어</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  도움말</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  지원</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>이전 크기로 복원</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>프로그램 제거</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>설치된 프로그램 관리 · 일괄 제거 · 레지스트리 잔여 항목 정리</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> 앱</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> 미사용</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>설치된 소프트웨어 검색...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>미사용</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ 새로 고침</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>크기순</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>날짜순</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>이름순</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>게시자</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>설치 날짜</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>&apos;새로 고침&apos;을 클릭하여 설치된 프로그램을 검사하세요.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>설치된 프로그램 검사 중...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>레지스트리 항목을 읽는 중입니다. 잠시 기다려 주세요...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ 잔여 파일 정리</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>선택 항목 제거</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>프로그램 &lt;b&gt;%1&lt;/b&gt;개</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;개 선택  ·  &lt;b&gt;%2&lt;/b&gt; 확보 가능</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>제거 확인</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>&quot;%1&quot;을(를) 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>제거 프로그램을 찾을 수 없음</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;에는 자체 제거 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>&lt;b&gt;강제 제거&lt;/b&gt;를 사용하면 설치 폴더, 레지스트리 항목 및 관련 파일을 삭제할 수 있습니다.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 이 작업은 되돌릴 수 없습니다.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>강제 제거…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>제거 중: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ 제거됨: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;잔여 파일 정리 →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ 제거 실패: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>제거 실패</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>자체 제거 프로그램으로 &lt;b&gt;%1&lt;/b&gt;을(를) 제거하지 못했습니다.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;강제 제거&lt;/b&gt;는 다음 작업을 수행합니다.&lt;br&gt;• 실행 중인 모든 프로세스 종료&lt;br&gt;• 설치 폴더 삭제&lt;br&gt;• 레지스트리 항목 제거&lt;br&gt;• 시작 프로그램 및 서비스 정리&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 이 작업은 되돌릴 수 없습니다. 확인하기 전에 각 항목을 꼼꼼히 검토하세요.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>찾을 수 없음</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;의 설치 정보를 찾을 수 없습니다.&lt;br&gt;직접 제거하세요.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>일괄 제거</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>선택한 앱 %1개를 제거하시겠습니까?
이 작업은 되돌릴 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>제거</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>제거 실패(관리자 권한이 필요할 수 있음)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>시스템 보호 앱이므로 현재 사용자에 대한 등록만 제거했습니다. 시스템 수준 구성 요소는 다시 시작한 후 자동으로 복원될 수 있습니다.
완전히 삭제하려면 이 프로그램을 관리자 권한으로 실행하세요.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows 앱</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>앱 검색...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 새로 고침</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>게시자</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>설치 날짜</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>앱 제거 중...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>잠시 기다려 주세요...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>검사 중...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Windows 앱 검사 중...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Windows 앱 검사 중... %1개 찾음</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>앱 %1 / %2개 표시</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>앱 총 %1개</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  선택 항목 제거</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  선택 항목 제거 (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>앱 %1개 선택됨</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Microsoft Edge를 제거할 수 없음</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge는 Windows 시스템 구성 요소이므로 이 방법으로 제거할 수 없습니다.

기본 브라우저를 변경하려면
&apos;설정 → 앱 → 기본 앱&apos;에서 설정하세요.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>앱 제거</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>&quot;%1&quot;을(를) 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>일괄 제거</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>선택한 앱 %1개를 제거하시겠습니까?
이 작업은 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>앱 %1개 제거 중...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>앱 %1 / %2개</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>&quot;%1&quot; 제거 중... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ 앱 %1개를 제거했습니다. 새로 고치는 중...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>제거 실패</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>모든 앱을 제거하지 못했습니다.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>일부 항목 제거 실패</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>성공 &lt;b&gt;%1&lt;/b&gt;개, 실패 &lt;b&gt;%2&lt;/b&gt;개.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>실패 세부 정보:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;시스템 기본 설치 앱(Edge, 사진 등)은 보호되어 있어 이 방법으로 제거할 수 없을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
