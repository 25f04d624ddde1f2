<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>„%1“ wird entfernt... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Keine Browsererweiterungen gefunden</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browsererweiterungen</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Erweiterungen durchsuchen...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Aktualisieren</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Browsererweiterungen werden gescannt...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Wird gescannt...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 von %2 Erweiterungen</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 Erweiterungen insgesamt</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Auswahl entfernen (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Auswahl entfernen</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Browser wird ausgeführt</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Folgende Browser haben noch aktive Hintergrundprozesse:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Klicken Sie auf „Beenden erzwingen“, um alle zugehörigen Prozesse zu beenden und fortzufahren, oder schließen Sie den Browser selbst und klicken Sie auf „Wiederholen“.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; hat noch aktive Hintergrundprozesse.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Auch nach dem Schließen des Browserfensters können Hintergrundprozesse weiterlaufen. Klicken Sie auf „Beenden erzwingen“ oder beenden Sie sie selbst und klicken Sie auf „Wiederholen“.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Beenden erzwingen und entfernen</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Nicht vollständig beendet: %1&lt;br&gt;Bitte im Task-Manager manuell beenden und erneut versuchen.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>%1 konnte nicht vollständig beendet werden. Beenden Sie alle %2-Prozesse im Task-Manager und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Prozess konnte nicht beendet werden</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Erweiterung entfernen</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; wirklich entfernen?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;Die Erweiterungsverwaltung von %2 wird geöffnet und die Erweiterungs-ID kopiert&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Erweiterung wird entfernt...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ „%1“ entfernt</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Automatisches Entfernen fehlgeschlagen</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; konnte nicht automatisch entfernt werden</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>Die Erweiterungsverwaltung von %1 wurde geöffnet.&lt;br&gt;Die Erweiterungs-ID wurde in die Zwischenablage kopiert:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Klicken Sie nach dem manuellen Entfernen auf &lt;b&gt;Aktualisieren&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Die &lt;b&gt;%1&lt;/b&gt; ausgewählten Erweiterungen wirklich entfernen?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>%1 Erweiterungen werden entfernt...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Entfernen abgeschlossen</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Erweiterungen erfolgreich entfernt.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>Die Liste wird automatisch aktualisiert.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Teilweise fehlgeschlagen</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; erfolgreich, &lt;b&gt;%2&lt;/b&gt; fehlgeschlagen.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Fehlgeschlagen (bitte manuell im Browser entfernen):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 Erweiterungen</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Datenträgerbereinigung</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Unnötige Dateien finden und Speicherplatz sicher freigeben</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Wird gescannt…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Erneut scannen</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Alle auswählen</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Auswahl bereinigen</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scan abgeschlossen</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Bereinigung abgeschlossen, &lt;b&gt;%1&lt;/b&gt; freigegeben</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Auswahl aufheben</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Kategorien ausgewählt  ·  ca. &lt;b&gt;%2&lt;/b&gt; werden frei</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>%1 Kategorien zum Bereinigen gefunden, insgesamt %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 Kategorien ausgewählt  ·  ca. %2 werden frei</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Wird gescannt…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Temporäre Windows-Dateien</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update-Cache</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome-Cache</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge-Cache</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox-Cache</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Systemprotokolldateien</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch-Cache</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Miniaturansichten</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Absturzabbilder</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Vorherige Windows-Installationen</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Datenträger­bereinigung</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Unnötige Dateien entfernen</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Programme deinstallieren</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Installierte Programme verwalten</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows-Apps</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>UWP-Apps verwalten</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browser­erweiterungen</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Erweiterungen verwalten</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Systemübersicht</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● Live</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Systeminformationen werden gelesen…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Installierte Updates</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Echtzeitleistung</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Schnellaktionen</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 Kerne</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Betriebszeit: %1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Betriebszeit: %1 Tg. %2 Std.</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Entfernen erzwingen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Auswahl entfernen</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Erzwungenes Entfernen: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Zu entfernende Elemente werden gesucht...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Prüfen Sie jedes Element sorgfältig. Elemente mit hohem Risiko sind standardmäßig nicht ausgewählt.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Nichts zum Entfernen gefunden.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Ausgewählte Elemente werden entfernt...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Erzwungenes Entfernen abgeschlossen</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>Die Anwendung und ihre zugehörigen Dateien wurden entfernt.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>Der Installationsort %1 ist ein System- oder Benutzerordner und bleibt unangetastet.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Nichts zum Entfernen gefunden</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Elemente gefunden  ·  &lt;b&gt;%2&lt;/b&gt; können frei werden</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Erzwungenes Entfernen abgeschlossen  ·  &lt;b&gt;%1&lt;/b&gt; freigegeben</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Fertig ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Programmordner</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App-Daten</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Autostart-Verknüpfung</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Geplante Aufgabe</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Hohes Risiko</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Prozesse werden beendet...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Installationsordner wird gescannt...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>App-Daten werden gescannt...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Registrierung wird gescannt...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Autostart-Einträge werden gescannt...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Geplante Aufgaben werden gescannt...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Dienste werden gescannt...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Installationsordner: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>App-Daten: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Deinstallationseintrag in der Registrierung: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Autostart in der Registrierung: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Autostart-Verknüpfung: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Geplante Aufgabe: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows-Dienst: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Wird entfernt: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Fertig: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Die Seitenlinks konnten nicht geladen werden.

Bitte wenden Sie sich an den Support oder installieren Sie die Software neu.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Browser kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Der Standardbrowser konnte nicht geöffnet werden.

Bitte kopieren Sie den Link und öffnen Sie ihn manuell:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Konfigurationsfehler</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Über Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Die Sprache wurde auf %1 geändert.
Die Anwendung wird jetzt neu gestartet.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Neustart fehlgeschlagen</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Bitte starten Sie die Anwendung manuell neu.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Reste bereinigen</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Reste bereinigen</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Restdateien werden gesucht...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Wird initialisiert...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Keine Restdateien gefunden!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Wird gescannt...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Elemente gefunden  ·  &lt;b&gt;%2&lt;/b&gt; können frei werden</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Keine Restdateien gefunden</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Auswahl bereinigen</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Wird bereinigt...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Wird bereinigt... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Bereinigt – %1 freigegeben</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Fertig ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Verwaiste App-Daten</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Cache-Dateien</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Protokolldateien</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Temporäre Dateien</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Systemübersicht</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Datenträger­bereinigung</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows-Apps</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browser­erweiterungen</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Über Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Sprache</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Hilfe</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Support</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Verkleinern</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Programme deinstallieren</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Installierte Programme verwalten · Mehrfach deinstallieren · Registrierungsreste bereinigen</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> Programme</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> ungenutzt</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Installierte Programme durchsuchen...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Ungenutzt</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Aktualisieren</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Nach Datum</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Herausgeber</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Installiert am</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Klicken Sie auf „Aktualisieren“, um die installierten Programme zu scannen.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Installierte Programme werden gescannt...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Registrierungseinträge werden gelesen, bitte warten...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Reste bereinigen</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Auswahl deinstallieren</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Wird gescannt...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Programme</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; ausgewählt  ·  &lt;b&gt;%2&lt;/b&gt; werden frei</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Deinstallation bestätigen</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>„%1“ deinstallieren?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Kein Deinstallationsprogramm gefunden</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; hat kein eigenes Deinstallationsprogramm.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Mit &lt;b&gt;Entfernen erzwingen&lt;/b&gt; werden der Installationsordner, die Registrierungseinträge und zugehörige Dateien gelöscht.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Dies kann nicht rückgängig gemacht werden.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Entfernen erzwingen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Wird deinstalliert: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Deinstalliert: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Reste bereinigen →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Deinstallation fehlgeschlagen: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Deinstallation fehlgeschlagen</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; konnte mit dem eigenen Deinstallationsprogramm nicht deinstalliert werden.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;Entfernen erzwingen&lt;/b&gt; wird:&lt;br&gt;• alle laufenden Prozesse beenden&lt;br&gt;• den Installationsordner löschen&lt;br&gt;• Registrierungseinträge entfernen&lt;br&gt;• Autostart-Einträge &amp;amp; Dienste bereinigen&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Dies kann nicht rückgängig gemacht werden. Prüfen Sie die Elemente vor dem Bestätigen sorgfältig.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Für &lt;b&gt;%1&lt;/b&gt; wurden keine Installationsdaten gefunden.&lt;br&gt;Bitte entfernen Sie das Programm manuell.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Auswahl deinstallieren</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>%1 ausgewählte Programme deinstallieren?
Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Entfernen fehlgeschlagen (evtl. sind Administratorrechte erforderlich)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Geschützte System-App: Sie wurde für den aktuellen Benutzer entfernt, systemweite Komponenten können aber nach einem Neustart zurückkehren.
Zum vollständigen Entfernen führen Sie Norvale als Administrator aus.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows-Apps</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Apps durchsuchen...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Aktualisieren</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Herausgeber</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Installiert am</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>App wird entfernt...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Wird gescannt...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Windows-Apps werden gescannt...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Windows-Apps werden gescannt... %1 gefunden</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 von %2 Apps</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 Apps insgesamt</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Auswahl entfernen</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Auswahl entfernen (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 Apps ausgewählt</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Microsoft Edge kann nicht deinstalliert werden</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge ist eine Windows-Systemkomponente und kann auf diese Weise nicht deinstalliert werden.

Um den Standardbrowser zu ändern, öffnen Sie
„Einstellungen → Apps → Standard-Apps“.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>App entfernen</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>„%1“ wirklich entfernen?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Die %1 ausgewählten Apps wirklich entfernen?
Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>%1 Apps werden entfernt...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 Apps</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>„%1“ wird entfernt... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 Apps entfernt, Liste wird aktualisiert...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Entfernen fehlgeschlagen</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Keine der Apps konnte entfernt werden.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Teilweise fehlgeschlagen</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; erfolgreich, &lt;b&gt;%2&lt;/b&gt; fehlgeschlagen.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Fehlerdetails:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Vorinstallierte System-Apps (z. B. Edge, Fotos) sind möglicherweise geschützt und können auf diese Weise nicht entfernt werden.</translation>
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
